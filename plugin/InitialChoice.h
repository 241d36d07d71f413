#pragma once

namespace ZORVEL {

struct PageOffer;

/// What is chosen to begin with.
class InitialChoice {
 public:
  InitialChoice() = delete;

  /// Chooses what the page begins with, by commands that ask for no refresh of the window; while it rebuilds its tabs
  /// they do nothing.
  static void Make(const PageOffer& page);
};

}  // namespace ZORVEL

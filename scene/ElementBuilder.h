#pragma once

#include "model/PiecePlans.h"
#include "scene/PieceBuilder.h"

namespace ZORVEL {

struct BuildContext;
struct BuildReport;

/// Makes everything that hangs on the parent of a character.
class ElementBuilder {
 public:
  /// Both must outlive this.
  ElementBuilder(const BuildContext& context, BuildReport& report);

  /// Body, the assets that the pose asks for, clothing, chosen assets. Whatever cannot be made is left out; without a
  /// body the pose's assets are, too.
  void AddAll() const;

 private:
  /// False when there is none.
  bool AddBody() const;
  void AddMandatoryAssets() const;
  void LeaveOutMandatoryAssets() const;
  void AddCloth() const;
  void AddSelectedAssets() const;
  void AddSelectedAsset(int unique) const;
  void AddAsset(const PiecePlan& plan) const;

  const BuildContext& m_context;
  BuildReport& m_report;
  PiecePlans m_plans;
  PieceBuilder m_pieces;
};

}  // namespace ZORVEL

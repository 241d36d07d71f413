#pragma once

namespace ZORVEL {

struct BuildContext;
struct BuildReport;
class DataContainer;

/// Makes everything that hangs on the parent of a character.
class ElementBuilder {
 public:
  /// Both must outlive this.
  ElementBuilder(const BuildContext& context, BuildReport& report) : m_context(context), m_report(report) {}

  /// Body, the assets that the pose asks for, clothing, chosen assets. Whatever cannot be made is left out; without a
  /// body the pose's assets are, too.
  void AddAll();

 private:
  /// False when there is none.
  bool AddBody();
  void AddMandatoryAssets();
  void AddMandatoryAsset(const DataContainer* entry);
  void LeaveOutMandatoryAssets();
  void AddCloth();
  void AddSelectedAssets();
  void AddSelectedAsset(int unique);

  const BuildContext& m_context;
  BuildReport& m_report;
};

}  // namespace ZORVEL

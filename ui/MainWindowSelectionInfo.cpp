#include "ui/MainWindowSelectionInfo.h"

#include "model/CharacterData.h"
#include "model/Data2.h"
#include "model/Selection2.h"
#include "ui/DarkPalette.h"
#include "ui/Log.h"
#include "ui/Texts.h"

namespace ZORVEL {

namespace {

std::wstring Quoted(const std::wstring& name) { return L"\"" + name + L"\""; }

/// `title: "name"`, or nothing without a record.
std::wstring Labelled(const std::wstring& before, const wchar_t* title, const DataContainer* record) {
  if (record == nullptr) return std::wstring();
  return before + (title != nullptr ? title : L"") + L": " + Quoted(Texts::Name(record));
}

}  // namespace

void MainWindowSelectionInfo::CreateInfo(MaxForm& form) {
  m_label = new QLabel(QStringLiteral("xxx"));
  m_label->setTextFormat(Qt::PlainText);
  m_label->setPalette(DarkPalette(m_label->palette()));
  m_label->setAutoFillBackground(true);
  m_label->setMargin(4);
  m_label->setWordWrap(true);
  m_label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  m_label->setAccessibleName(QObject::tr("What is chosen"));
  form.AddControl(m_label, QRect(185, 37, 600, 50), ANCHOR_TOP | ANCHOR_LEFT | ANCHOR_RIGHT);
}

void MainWindowSelectionInfo::UpdateInfo() {
  LogInfo(L"Update Info Widget");
  Show(std::wstring());
  if (*Selection2::GetCharacter() == L'\0') return LogInfo(L"current char is nullptr");
  const CharacterData* character = Data2::GetCharacter(Selection2::GetCharacter());
  if (character == nullptr) return LogInfo(L"current char object is nullptr");
  Show(Describe(*character) + DescribeAssets(*character));
}

std::wstring MainWindowSelectionInfo::Describe(const CharacterData& character) {
  std::wstring text = L"Character: " + Quoted(Texts::Name(&character));
  const wchar_t* clothId = Selection2::GetCloth();
  if (const DataContainer* cloth = character.GetCloth(clothId))
    text += L", Outfit: " + Quoted(Texts::Name(cloth)) + L"\n";
  text += Labelled(L"", character.GetContainerName(POSES), character.GetPose(Selection2::GetPose()));
  text += Labelled(L", ", character.GetContainerName(SKINS), character.GetSkin(Selection2::GetSkin()));
  text += Labelled(L", ", character.GetContainerName(CLOTH), character.GetStyle(clothId, Selection2::GetStyle()));
  return text;
}

std::wstring MainWindowSelectionInfo::DescribeAssets(const CharacterData& character) {
  std::wstring text;
  for (int i = 0; i < Selection2::GetAssetCount(); ++i) {
    const int unique = Selection2::GetAsset(i);
    DataContainer* asset = nullptr;
    DataContainer* material = nullptr;
    if (!Data2::GetGlobalAssetAndMaterial(unique, asset, material)) {
      character.GetAssetAndMaterial(unique, asset, material);
    }
    if (asset == nullptr) continue;
    if (text.empty()) text = L"\n";
    text +=
        Quoted(material != nullptr ? Texts::Name(asset) + L":" + Texts::Name(material) : Texts::Name(asset)) + L", ";
  }
  return text;
}

void MainWindowSelectionInfo::Show(const std::wstring& text) {
  m_label->setText(Texts::FromWide(text));
  m_label->setToolTip(text.empty() ? QString() : Texts::ToolTip(m_label->text()));
}

}  // namespace ZORVEL

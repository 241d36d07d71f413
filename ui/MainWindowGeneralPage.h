#pragma once

#include <QTabWidget>
#include <memory>
#include <vector>

#include "core/FileStamps.h"
#include "model/PageOffer.h"
#include "ui/MainWindowElement.h"
#include "ui/MaxForm.h"
#include "ui/ScrollPanel.h"

namespace ZORVEL {

class DataContainer;

/// One tab page: elements in columns. What a click on one of them means is for the kinds of pages to say.
class MainWindowGeneralPage {
 public:
  /// The files are asked while the page is filled.
  MainWindowGeneralPage(MaxForm& form, FileStamps& files) : m_form(form), m_files(files) {}
  virtual ~MainWindowGeneralPage() = default;
  MainWindowGeneralPage(const MainWindowGeneralPage&) = delete;
  MainWindowGeneralPage& operator=(const MainWindowGeneralPage&) = delete;

  /// Adds the tab. `width` is the form's, here and below.
  void Create(QTabWidget* tabControl, int width, const std::wstring& title);
  /// In pixels.
  void SetPictureSize(const QSize& size) { m_pictureSize = size; }
  const QSize& GetPictureSize() const { return m_pictureSize; }
  /// Lays the elements out and scrolls to the top.
  void SetWidth(int width);
  /// Makes the controls of the elements, once. Pages that nobody looks at do without.
  void Show();
  int GetX(int column) const { return (m_pictureSize.width() + 15) * column + 15; }
  int GetY(int row) const { return (m_pictureSize.height() + 15) * (row + 1) + 50 * row; }

  virtual void SelectedElement(int unique) = 0;
  virtual void UnselectElement(int unique) = 0;

  void SelectOnlyUnique(int unique);
  /// Checks the chosen one of a list alone; the page goes back to it when it is unchecked. Null, for a choice that this
  /// character does not have, checks none.
  void ShowChosen(const DataContainer* element);
  void SelectElement(int unique);
  /// Checks what is among the chosen assets.
  void UpdateSelection();

  QWidget* GetFirstControl() const;
  /// The page goes with its control, which the tab control owns.
  ScrollPanel* GetControl() const { return m_page; }
  FileStamps& GetFiles() { return m_files; }
  const std::vector<std::unique_ptr<MainWindowElement>>& GetElements() const { return m_elements; }

 protected:
  using ElementPtr = std::unique_ptr<MainWindowElement>;

  /// Makes the elements that the page shows, and chooses what it begins with; the window is not refreshed for it.
  void Fill(PageOffer page);

  int m_lastSelected = 0;

 private:
  void BeginWith(const PageOffer& page);
  void LayOut();
  void MouseMove();

  MaxForm& m_form;
  FileStamps& m_files;
  std::vector<ElementPtr> m_elements;
  ScrollPanel* m_page = nullptr;
  bool m_isShown = false;
  int m_step = 0;
  QSize m_pictureSize;
};

}  // namespace ZORVEL

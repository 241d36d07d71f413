#pragma once

#include <QTabWidget>
#include <memory>
#include <vector>

#include "core/FileStamps.h"
#include "model/PageOffer.h"
#include "ui/MainWindowElementBase.h"
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
  /// Of the pictures, in pixels.
  void SetSize(int w, int h);
  /// Lays the elements out and scrolls to the top.
  void SetWidth(int width);
  /// Makes the controls of the elements, once. Pages that nobody looks at do without.
  void Show();
  int GetX(int column) const { return (m_w + 15) * column + 15; }
  int GetY(int row) const { return (m_h + 15) * row + m_h + 15 + 50 * row; }

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
  const std::vector<std::unique_ptr<MainWindowElementBase>>& GetElements() const { return m_elements; }

 protected:
  using ElementPtr = std::unique_ptr<MainWindowElementBase>;

  /// Makes the elements that the page shows, and chooses what it begins with; the window is not refreshed for it.
  template <class Element>
  void Fill(PageOffer page) {
    m_elements.reserve(page.shown.size());
    for (OfferedElement& offered : page.shown) {
      m_elements.push_back(std::make_unique<Element>());
      m_elements.back()->Create(std::move(offered), this);
    }
    BeginWith(page);
  }

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
  int m_w = 0;
  int m_h = 0;
};

}  // namespace ZORVEL

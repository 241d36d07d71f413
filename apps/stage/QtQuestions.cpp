#include "apps/stage/QtQuestions.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>

#include "apps/stage/ShownText.h"
#include "host/application/Application.h"
#include "host/files/Paths.h"
#include "host/services/FileDialog.h"

namespace stage {

namespace {

host::FileDialog& hostDialog() { return host::Application::instance().fileDialog(); }

std::filesystem::path pathOf(const QString& name) { return {name.toStdString()}; }

/// As Qt writes filters.
QString filterOf(const host::FileDialog::Question& question) {
  QStringList filters;
  for (const auto& [name, patterns] : question.filters) {
    const QString list = QString::fromStdWString(patterns).replace(';', ' ');
    filters << QString("%1 (%2)").arg(QString::fromStdWString(name).remove('(').remove(')'), list);
  }
  return filters.join(";;");
}

Questions::File askForHost(QWidget* window, const host::FileDialog::Question& question) {
  const QString folder = QString::fromStdString(host::resolvePath(question.folder).string());
  const QString file =
      QFileDialog::getOpenFileName(window, QString::fromStdWString(question.title), folder, filterOf(question));
  if (file.isEmpty()) return std::nullopt;
  return pathOf(file);
}

}  // namespace

QtQuestions::QtQuestions(QWidget* window) : window_(window) {
  hostDialog().setProvider(
      [this](const host::FileDialog::Question& question) { return askForHost(window_, question); });
}

QtQuestions::~QtQuestions() { hostDialog().setProvider({}); }

Questions::File QtQuestions::openFile(const QString& title, const QString& filter) {
  const QString file = QFileDialog::getOpenFileName(window_, title, folder_, filter);
  if (file.isEmpty()) return std::nullopt;
  folder_ = QFileInfo(file).path();
  return pathOf(file);
}

Questions::File QtQuestions::saveFile(const QString& title, const QString& filter, const QString& suffix) {
  QFileDialog dialog(window_, title, folder_, filter);
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setDefaultSuffix(suffix);
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
  const QString file = dialog.selectedFiles().front();
  folder_ = QFileInfo(file).path();
  return pathOf(file);
}

Questions::Unsaved QtQuestions::unsavedChanges(const QString& name) {
  QMessageBox box(QMessageBox::Question, QObject::tr("Unsaved changes"),
                  QObject::tr("Save the changes to %1?").arg(shownText(name)),
                  QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, window_);
  box.setTextFormat(Qt::PlainText);
  box.setDefaultButton(QMessageBox::Save);
  const int answer = box.exec();
  if (answer == QMessageBox::Save) return Unsaved::Save;
  return answer == QMessageBox::Discard ? Unsaved::Discard : Unsaved::Cancel;
}

}  // namespace stage

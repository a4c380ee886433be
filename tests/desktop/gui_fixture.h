// The whole program on an offscreen display, over a fake server, driven through its widgets' names.
#pragma once

#include <QApplication>
#include <QClipboard>
#include <QTableView>
#include <QTest>
#include <QWheelEvent>
#include <memory>

#include "desktop/Desktop.h"
#include "desktop/desktop_services.h"
#include "shell/main_fixture.h"

namespace kestrelix::testing_support {

inline SectionList guiCatalogue() {
  static const std::vector<Section> sections = [] {
    std::vector<Section> all(smallCatalogue().begin(), smallCatalogue().end());
    all.push_back(
        {.text = "Long", .code = 200, .versions = kAllVersions, .col = byCells({1}), .views = someViews()});
    return all;
  }();
  return sections;
}

class GuiTest : public ShellTest {
 protected:
  GuiTest() {
    services.sections = guiCatalogue();
    rendered().clear();
    layInstance(server, "1001", "10.2.0.4.0", "1", "YES");
    laySnapshots(server, {{"1", "2026-01-05 10:00:00"},
                          {"2", "2026-01-05 11:00:00"},
                          {"3", "2026-01-05 12:00:00"},
                          {"4", "2026-01-05 13:00:00"}});
  }

  void start(const std::string& stored = "DEMO,PERFSTAT,perfstat\r\n") {
    folder.writeLogins(stored);
    desktop = std::make_unique<Desktop>(DesktopParts{boxes,
                                                     {qtClipboard,
                                                      services.help,
                                                      services.programFolder,
                                                      services.makeSession,
                                                      services.sections,
                                                      {},
                                                      &reads()},
                                                     operations,
                                                     progressClock});
    desktop->start();
    settle();
  }
  void logOn() {
    start();
    doubleClickCell("MSFlexGridLogin", 0, 0);
  }
  /// Who reads the views: the recording reader, unless a test has one of its own.
  virtual SectionReader& reads() { return reader; }
  static void settle() {
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }

  static QWidget* window(const char* name) {
    for (QWidget* top : QApplication::topLevelWidgets())
      if (top->isVisible() && top->objectName() == name) return top;
    return nullptr;
  }
  template <class Widget = QWidget>
  static Widget* find(const char* name) {
    for (QWidget* top : QApplication::topLevelWidgets())
      if (auto* found = top->findChild<Widget*>(name)) return found;
    throw std::runtime_error(std::string("there is no widget ") + name);
  }
  static QAbstractItemView* view(const char* name) { return find<QAbstractItemView>(name); }
  static QString cell(const char* grid, int row, int col) {
    return view(grid)->model()->index(row, col).data().toString();
  }
  static QPoint centre(const char* name, int row, int col) {
    const QModelIndex index = view(name)->model()->index(row, col);
    view(name)->scrollTo(index);
    return view(name)->visualRect(index).center();
  }
  static void click(const char* name, int row, int col = 0, Qt::KeyboardModifiers keys = {}) {
    QTest::mouseClick(view(name)->viewport(), Qt::LeftButton, keys, centre(name, row, col));
    settle();
  }
  static void doubleClickCell(const char* name, int row, int col) {
    const QPoint at = centre(name, row, col);
    QTest::mouseClick(view(name)->viewport(), Qt::LeftButton, {}, at);
    QTest::mouseDClick(view(name)->viewport(), Qt::LeftButton, {}, at);
    settle();
  }
  static void press(const char* button) {
    QTest::mouseClick(find(button), Qt::LeftButton);
    settle();
  }
  static void key(const char* widget, Qt::Key pressed, Qt::KeyboardModifiers keys = {}) {
    QTest::keyClick(find(widget), pressed, keys);
    settle();
  }
  /// A turn of the wheel, in eighths of a degree, as the window system sends it.
  static void turn(QWidget* over, QPoint angle) {
    const QPoint at = over->rect().center();
    QWheelEvent event(at, over->mapToGlobal(at), {}, angle, Qt::NoButton, {}, Qt::NoScrollPhase, false);
    QSpontaneKeyEvent::setSpontaneous(&event);
    qApp->notify(over, &event);
    settle();
  }
  static std::string clipboardText() { return QApplication::clipboard()->text().toStdString(); }

  RecordingOperations recorded;
  std::function<ReportOperations(Workspace&)> operations = [this](Workspace&) {
    return recorded.operations();
  };
  std::function<QtProgress::Time()> progressClock = std::chrono::steady_clock::now;
  QtClipboard qtClipboard;
  std::unique_ptr<Desktop> desktop;
};

}  // namespace kestrelix::testing_support

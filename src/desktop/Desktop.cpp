#include "desktop/Desktop.h"

#include <QApplication>
#include <QIcon>
#include <QProxyStyle>
#include <QStyleFactory>
#include <iostream>

#include "desktop/mirror.h"

namespace kestrelix {
namespace {

/// Drop-down lists open below their box, passwords show as stars, and the buttons of boxes bear no icons.
class ClassicStyle final : public QProxyStyle {
 public:
  ClassicStyle() : QProxyStyle(QStyleFactory::create("Fusion")) {}
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* result) const override {
    switch (hint) {
      case SH_ComboBox_Popup:
      case SH_DialogButtonBox_ButtonsHaveIcons:
        return 0;
      case SH_LineEdit_PasswordCharacter:
        return '*';
      default:
        return QProxyStyle::styleHint(hint, option, widget, result);
    }
  }
};

class Application final : public QApplication {
 public:
  using QApplication::QApplication;
  bool notify(QObject* receiver, QEvent* event) override {
    try {
      return QApplication::notify(receiver, event);
    } catch (const std::exception& error) {
      std::cerr << "kestrelix: " << error.what() << std::endl;
      return true;
    }
  }
};

}  // namespace

Desktop::Desktop(DesktopParts parts)
    : parts_(std::move(parts)),
      progress_(parts_.clock),
      workspace_(parts_.boxes, &progress_),
      login_(workspace_, parts_.services) {
  login_.showMain = [this] { showMain(); };
  login_.Unloaded.connect([this] { windowGone(loginWindow_); });
}

Desktop::~Desktop() {
  mainWindow_.reset();
  loginWindow_.reset();
}

void Desktop::start() {
  loginWindow_ = std::make_unique<LoginWindow>(login_);
  loginWindow_->open();
  login_.Load(loginWindow_->handle());
}

void Desktop::showMain() {
  main_ = std::make_unique<FormMain>(workspace_, parts_.services, parts_.operations(workspace_));
  main_->Unloaded.connect([this] { windowGone(mainWindow_); });
  mainWindow_ = std::make_unique<MainWindow>(*main_, workspace_.controls);
  progress_.showOver(*mainWindow_->findChild<QWidget*>(text(workspace_.controls.MSFlexGridMain.name())));
  main_->Load(mainWindow_->handle(), login_);
  if (mainWindow_) mainWindow_->open();
}

/// The window can be in the midst of one of its own events: it goes when that is over.
void Desktop::windowGone(std::unique_ptr<FormWindow>& window) {
  if (FormWindow* gone = window.release()) {
    gone->hide();
    gone->deleteLater();
  }
  if (!loginWindow_ && !mainWindow_) QCoreApplication::quit();
}

int runDesktop(int& argc, char** argv, const std::function<DesktopParts()>& parts) {
  QApplication::setStyle(new ClassicStyle);
  Application application(argc, argv);
  QApplication::setApplicationName("Kestrelix");
  QApplication::setQuitOnLastWindowClosed(false);
  // The picture of the windows: by the menu entry under Wayland, from the program's folder elsewhere.
  QApplication::setDesktopFileName("kestrelix");
  QApplication::setWindowIcon(QIcon(QApplication::applicationDirPath() + "/kestrelix.png"));
  Desktop desktop(parts());
  desktop.start();
  return QApplication::exec();
}

}  // namespace kestrelix

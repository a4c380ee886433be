#include "desktop/windows.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QScreen>
#include <QStyle>
#include <QWheelEvent>
#include <algorithm>
#include <stdexcept>

#include "desktop/ChartView.h"
#include "desktop/GridView.h"
#include "desktop/fonts.h"
#include "desktop/lists.h"
#include "desktop/mirror.h"
#include "desktop/widgets.h"

namespace kestrelix {
namespace {

constexpr int kWheelStep = 120;  // eighths of a degree

}  // namespace

FormWindow::FormWindow(const WindowLayout& layout, const Label& title) : layout_(layout) {
  setObjectName(text(title.name()));
  setAccessibleName(text(title.name()));
  setFixedSize(pixels(layout.width), pixels(layout.height));
}

clsWheelMouse::Handle FormWindow::handle() const { return reinterpret_cast<clsWheelMouse::Handle>(this); }

const ControlPlace& FormWindow::placeOf(std::string_view control) const {
  const auto found = std::find_if(layout_.places.begin(), layout_.places.end(),
                                  [control](const ControlPlace& place) { return place.name == control; });
  if (found == layout_.places.end()) throw std::logic_error("the layout lacks " + std::string(control));
  return *found;
}

QFont FormWindow::fontOf(const char* control) const {
  const ControlPlace& place = placeOf(control);
  return fixedFont(place.fontPoints > 0 ? place.fontPoints : layout_.fontPoints, place.bold);
}

void FormWindow::place(QWidget& widget) {
  const ControlPlace& place = placeOf(widget.objectName().toStdString());
  if (!place.parent.empty()) widget.setParent(findChild<QWidget*>(text(place.parent)));
  widget.setGeometry(pixels(place.left), pixels(place.top), pixels(place.width), pixels(place.height));
}

void FormWindow::open() {
  flushMirrors(*this);
  setGeometry(QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, size(), screen()->availableGeometry()));
  show();
}

/// A wheel of fine steps turns a row when they make up one of a plain wheel.
void FormWindow::wheelEvent(QWheelEvent* event) {
  const int delta = event->angleDelta().y();
  if ((delta < 0) != (turned_ < 0)) turned_ = 0;
  turned_ += delta;
  event->accept();
  if (std::abs(turned_) < kWheelStep) return;
  turned_ = 0;
  modWheelMouse::wheelTurned(handle(), delta);
}

LoginWindow::LoginWindow(FormLogin& form) : FormWindow(loginLayout(), form.controls.Title), form_(form) {
  LoginControls& c = form.controls;
  const auto label = [this](Label& control) {
    place(*new LabelView(control, fontOf(control.name().c_str()), 0, this));
  };
  const auto box = [this](TextBox& control) {
    auto* widget = new TextBoxView(control, fontOf(control.name().c_str()), this);
    place(*widget);
    return widget;
  };
  const auto button = [this](CommandButton& control) {
    place(*new CommandButtonView(control, fontOf(control.name().c_str()), this));
  };
  new Mirror(
      c.Title, [this, &c] { setWindowTitle(text(c.Title.Caption())); }, this);
  label(c.LabelUSER);
  QWidget* const user = box(c.TextUSER);
  label(c.LabelPASS);
  box(c.TextPASS)->setEchoMode(QLineEdit::Password);
  label(c.LabelTNS);
  box(c.TextTNS);
  button(c.CommandOK);
  button(c.CommandCANCEL);
  button(c.CommandDELETE);
  place(*new GridView(c.MSFlexGridLogin, fontOf("MSFlexGridLogin"), this));
  user->setFocus();
}

void LoginWindow::closeEvent(QCloseEvent* event) {
  form_.Unload();
  event->accept();
}

MainWindow::MainWindow(FormMain& form, MainControls& controls)
    : FormWindow(mainLayout(), controls.Title), form_(form) {
  MainControls& c = controls;
  const auto frame = [this](Frame& control) {
    place(*new FrameView(control, fontOf(control.name().c_str()), this));
  };
  const auto heading = [this](Label& control) {
    place(*new LabelView(control, fontOf(control.name().c_str()), ListBoxView::textIndent(), this));
  };
  const auto list = [this](ListBox& control) {
    auto* widget = new ListBoxView(control, fontOf(control.name().c_str()), this);
    place(*widget);
    return widget;
  };
  new Mirror(
      c.Title, [this, &c] { setWindowTitle(text(c.Title.Caption())); }, this);
  place(*new ToolbarView(c.ToolbarTop, this));
  frame(c.FrameDbInstance);
  heading(c.LabelDbInstance);
  place(*new ComboBoxView(c.ComboDbInstance, fontOf("ComboDbInstance"), this));
  frame(c.FrameSnapId);
  heading(c.LabelSnapId);
  QWidget* const pairs = list(c.ListSnapId);
  frame(c.FrameSection);
  list(c.ListSection);
  for (Grid* grid : {&c.MSFlexGridMain, &c.MSFlexGridSql, &c.MSFlexGridPlan}) addGrid(*grid);
  frame(c.FrameGraph);
  place(*new ChartView(c.MSChartCommon, fontOf("MSChartCommon"), this));
  pairs->setFocus();
  qApp->installEventFilter(this);
}

void MainWindow::addGrid(Grid& grid) {
  auto* view = new GridView(grid, fontOf(grid.name().c_str()), this);
  view->keyDown = [this, &grid](int keyCode, int shift) { return form_.GridKeyDown(grid, keyCode, shift); };
  place(*view);
}

void MainWindow::closeEvent(QCloseEvent* event) {
  form_.Unload();
  event->accept();
}

/// The window sees every key ahead of the widget that has the keyboard.
bool MainWindow::eventFilter(QObject* object, QEvent* event) {
  if (event->type() == QEvent::KeyPress && object->isWidgetType() &&
      static_cast<QWidget*>(object)->window() == this) {
    const auto* key = static_cast<QKeyEvent*>(event);
    if (form_.KeyDown(key->key(), shiftState(key->modifiers()))) return true;
  }
  return QWidget::eventFilter(object, event);
}

}  // namespace kestrelix

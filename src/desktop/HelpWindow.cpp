#include "desktop/HelpWindow.h"

#include <QAction>
#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QSplitter>
#include <QToolButton>
#include <QVBoxLayout>

#include "desktop/grid_style.h"
#include "desktop/mirror.h"

namespace kestrelix {
namespace {

constexpr int kWidth = 980;
constexpr int kHeight = 680;
constexpr int kContentsWidth = 280;
constexpr int kRowHeight = 20;
constexpr int kAddress = Qt::UserRole;

void named(QWidget& widget, const char* name) {
  widget.setObjectName(name);
  widget.setAccessibleName(name);
}

QToolButton* pageButton(const char* name, const char* label, HelpPage* page, void (QTextBrowser::*step)()) {
  auto* button = new QToolButton;
  named(*button, name);
  button->setText(text(label));
  button->setAutoRaise(true);
  QObject::connect(button, &QToolButton::clicked, page, step);
  return button;
}

}  // namespace

HelpPage::HelpPage(const HelpFile& file, QWidget* parent) : QTextBrowser(parent), file_(file) {
  setOpenExternalLinks(false);
  grid_style::dress(*this);
  document()->setDocumentMargin(14);
  // A bar that came with a long page would narrow it, and the anchor would move away.
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
}

void HelpPage::showAddress(const QString& address) { setSource(QUrl("chm:/" + address)); }

QVariant HelpPage::loadResource(int, const QUrl& name) {
  const auto bytes = file_.read(name.path().toStdString());
  if (!bytes) return QByteArray();
  return QByteArray(bytes->data(), static_cast<qsizetype>(bytes->size()));
}

HelpWindow::HelpWindow(std::unique_ptr<HelpFile> file)
    : file_(std::move(file)), contents_(new QTreeWidget), page_(new HelpPage(*file_, nullptr)) {
  named(*this, "HelpWindow");
  named(*contents_, "HelpContents");
  named(*page_, "HelpPage");
  setWindowTitle(text("Kestrelix ヘルプ"));
  setAttribute(Qt::WA_DeleteOnClose);
  setAttribute(Qt::WA_QuitOnClose, false);
  resize(kWidth, kHeight);

  contents_->setHeaderHidden(true);
  grid_style::dress(*contents_);
  fillContents();

  auto* back = pageButton("HelpBack", "← 戻る", page_, &QTextBrowser::backward);
  auto* forward = pageButton("HelpForward", "進む →", page_, &QTextBrowser::forward);
  back->setEnabled(false);
  forward->setEnabled(false);
  connect(page_, &QTextBrowser::backwardAvailable, back, &QWidget::setEnabled);
  connect(page_, &QTextBrowser::forwardAvailable, forward, &QWidget::setEnabled);
  connect(page_, &QTextBrowser::sourceChanged, this, &HelpWindow::markShown);
  connect(contents_, &QTreeWidget::currentItemChanged, this, [this](const QTreeWidgetItem* item) {
    if (item) page_->showAddress(item->data(0, kAddress).toString());
  });

  auto* buttons = new QHBoxLayout;
  buttons->addWidget(back);
  buttons->addWidget(forward);
  buttons->addStretch();
  auto* splitter = new QSplitter;
  splitter->addWidget(contents_);
  splitter->addWidget(page_);
  splitter->setSizes({kContentsWidth, kWidth - kContentsWidth});
  splitter->setStretchFactor(1, 1);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(4, 4, 4, 4);
  layout->setSpacing(4);
  layout->addLayout(buttons);
  layout->addWidget(splitter);

  contents_->setCurrentItem(contents_->topLevelItem(0));
  contents_->setFocus();
}

void HelpWindow::fillContents() {
  std::vector<QTreeWidgetItem*> open;  // the last entry of each depth
  for (const HelpTopic& topic : file_->contents()) {
    const auto depth = std::min(static_cast<std::size_t>(topic.depth), open.size());
    open.resize(depth);
    auto* item = depth == 0 ? new QTreeWidgetItem(contents_) : new QTreeWidgetItem(open.back());
    item->setText(0, text(topic.title));
    item->setSizeHint(0, QSize(0, kRowHeight));
    item->setData(0, kAddress, text(topic.address));
    open.push_back(item);
  }
}

void HelpWindow::markShown(const QUrl& address) {
  const QString shown = address.toString(QUrl::RemoveScheme).mid(1);
  for (QTreeWidgetItemIterator entry(contents_); *entry; ++entry) {
    if ((*entry)->data(0, kAddress).toString() != shown) continue;
    const QSignalBlocker blocker(contents_);
    contents_->setCurrentItem(*entry);
    return;
  }
}

void HelpWindow::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape)
    close();
  else
    QWidget::keyPressEvent(event);
}

QtHelpViewer::~QtHelpViewer() {
  if (QApplication::instance()) delete window_;
}

void QtHelpViewer::HtmlHelp(const std::string& path, int command) {
  if (command == kDisplayContents) display(path);
  if (command == kCloseAll && window_) window_->close();
}

void QtHelpViewer::display(const std::string& path) {
  if (!window_) {
    auto file = HelpFile::open(path);
    if (!file || !file->complete()) return;
    window_ = new HelpWindow(std::move(file));
  }
  window_->setWindowState(window_->windowState() & ~Qt::WindowMinimized);
  window_->show();
  window_->raise();
  window_->activateWindow();
}

}  // namespace kestrelix

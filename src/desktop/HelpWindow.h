// The help on the screen.
#pragma once

#include <QPointer>
#include <QTextBrowser>
#include <QTreeWidget>
#include <memory>

#include "chm/HelpFile.h"
#include "platform/help.h"

namespace kestrelix {

/// A page of a help file, its pictures and style with it. An address is "page.html" or "page.html#anchor".
class HelpPage final : public QTextBrowser {
 public:
  HelpPage(const HelpFile& file, QWidget* parent);

  void showAddress(const QString& address);
  QVariant loadResource(int type, const QUrl& name) override;

 private:
  const HelpFile& file_;
};

/// Table of contents and page, side by side.
class HelpWindow final : public QWidget {
 public:
  /// `file` must have a table of contents.
  explicit HelpWindow(std::unique_ptr<HelpFile> file);

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void fillContents();
  /// Marks the entry that the page has come to, by whatever way.
  void markShown(const QUrl& address);

  std::unique_ptr<HelpFile> file_;
  QTreeWidget* contents_;
  HelpPage* page_;
};

/// One help window, made when it is first asked for. A help file that is missing or damaged shows nothing.
class QtHelpViewer final : public HelpViewer {
 public:
  ~QtHelpViewer() override;
  void HtmlHelp(const std::string& path, int command) override;

 private:
  void display(const std::string& path);

  QPointer<HelpWindow> window_;
};

}  // namespace kestrelix

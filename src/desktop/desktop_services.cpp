#include "desktop/desktop_services.h"

#include <QApplication>
#include <QClipboard>
#include <QCursor>
#include <QMessageBox>
#include <iostream>

#include "desktop/mirror.h"

namespace kestrelix {

void QtMessageBoxes::show(BoxIcon icon, const std::string& message, const std::string& underlying) {
  if (!underlying.empty()) std::cerr << message << ": " << underlying << std::endl;
  QMessageBox box(icon == BoxIcon::Critical ? QMessageBox::Critical : QMessageBox::Warning, "Kestrelix",
                  text(message), QMessageBox::Ok, QApplication::activeWindow());
  box.setTextFormat(Qt::PlainText);
  box.setObjectName("MessageBox");
  box.setAccessibleName("MessageBox");
  // The pointer is the user's again while the box stands, within an action too.
  QGuiApplication::setOverrideCursor(Qt::ArrowCursor);
  box.exec();
  QGuiApplication::restoreOverrideCursor();
}

void QtClipboard::Clear() { QApplication::clipboard()->clear(); }
void QtClipboard::SetText(const std::string& copied) { QApplication::clipboard()->setText(text(copied)); }

}  // namespace kestrelix

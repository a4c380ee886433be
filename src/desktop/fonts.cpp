#include "desktop/fonts.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QFontMetricsF>
#include <QStringList>
#include <cmath>

namespace kestrelix {
namespace {

QString installedFamily() {
  const QStringList installed = QFontDatabase::families();
  for (const char* family : {"ＭＳ ゴシック", "MS Gothic", "IPAGothic", "VL Gothic", "Noto Sans Mono CJK JP"})
    if (QString name = QString::fromUtf8(family); installed.contains(name)) return name;
  return QFontDatabase::systemFont(QFontDatabase::FixedFont).family();
}

}  // namespace

QFont fixedFont(double points, bool bold) {
  static const QString family = installedFamily();
  const int pixels = static_cast<int>(std::lround(points * 96 / 72));
  QFont font(family);
  font.setStyleHint(QFont::Monospace);
  font.setFixedPitch(true);
  font.setBold(bold);
  int size = pixels;
  do font.setPixelSize(size);
  while (QFontMetricsF(font).horizontalAdvance('0') > pixels / 2.0 && --size > pixels / 2);
  return font;
}

}  // namespace kestrelix

#pragma once

#include <QIcon>
#include <QString>

namespace kestrelix {

/// The picture of a toolbar button by its image key, drawn at any size; empty for an unknown key.
QIcon toolbarIcon(const QString& image);

}  // namespace kestrelix

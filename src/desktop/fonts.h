#pragma once

#include <QFont>

namespace kestrelix {

/// The windows' fixed-pitch font: the first of a list of Japanese ones that is installed, else any. Its half
/// width is half its size at most, so that the columns of the lists fit their places whatever font it is.
/// `points` count 96 dots to the inch, as the layout's twips do; the desktop's scaling comes on top.
QFont fixedFont(double points, bool bold = false);

}  // namespace kestrelix

#include "navigation/version_gate.h"

namespace kestrelix {

std::string majorVersion(std::string_view version) {
  const auto point = version.find('.');
  return point == std::string_view::npos ? std::string() : std::string(version.substr(0, point));
}

Failures versionGate(std::string_view major) {
  if (major == "9" || major == "10" || major == "11") return {};
  return {{"未対応のＤＢが選択されました。[対応データベース：Oracle9,Oracle10,Oracle11]"}};
}

}  // namespace kestrelix

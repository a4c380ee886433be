#include "report/Section.h"

#include <algorithm>

namespace kestrelix {

const ReleaseViews* Section::viewsOf(std::string_view version) const {
  const auto found = std::find_if(views.begin(), views.end(), [&](const ReleaseViews& of) {
    return of.versions == kAllVersions || (of.versions & versionOf(version)) != 0;
  });
  return found == views.end() ? nullptr : &*found;
}

bool isListed(const Section& section, std::string_view version, std::string_view parallel) {
  return (section.versions & versionOf(version)) != 0 && (!section.needsRac || parallel == "YES");
}

const Section* findSection(SectionList sections, std::string_view text) {
  const auto found = std::find_if(sections.begin(), sections.end(),
                                  [&](const Section& section) { return section.text == text; });
  return found == sections.end() ? nullptr : &*found;
}

}  // namespace kestrelix

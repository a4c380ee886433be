#include "sections/objects/ModuleDispinitParameters.h"

#include "sections/objects/clsinitParameters.h"

namespace kestrelix {
namespace {

using F = clsinitParameters::Field;

const ListView<clsinitParameters> kView{
    .all = "getINIT_PARAMETERS_ALL",
    .col = "getINIT_PARAMETERS_COL",
    .columns = {{"PARAMETER NAME", F::PARAMETER_NAME, Kind::Key},
                {"START VALUE", F::BEGIN_VALUE, Kind::Text},
                {"END VALUE", F::END_VALUE, Kind::Text}},
};

}  // namespace

std::vector<ReleaseViews> initParametersViews() { return {viewsOf(kAllVersions, kView)}; }

}  // namespace kestrelix

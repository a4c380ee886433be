#include "sections/objects/ModuleDispinitParameters.h"

#include "report/GridRendering.h"

namespace kestrelix {
namespace {

using P = clsinitParameters;

const ListView kView{
    {{"PARAMETER NAME", &P::PARAMETER_NAME}, {"START VALUE", &P::BEGIN_VALUE}, {"END VALUE", &P::END_VALUE}}};

}  // namespace

void gDispinitParameters_All(Workspace& workspace, const std::string& version) {
  clsinitParameters object;
  renderListAll(workspace, object, "getINIT_PARAMETERS_ALL", kView, version);
}

void gDispinitParameters_Col(Workspace& workspace, const std::string& version, const ColRequest& request) {
  clsinitParameters object;
  renderListCol(workspace, object, "getINIT_PARAMETERS_COL", kView, version, request.keys);
}

}  // namespace kestrelix

#include "mainwindow/MainWindowValues.h"

#include "base/mString.h"
#include "profiles/Profile.h"

namespace frmMainRules {

MainWindowValues ValuesOf(const Profile& profile) {
    MainWindowValues values;
    values.tarvolinPath = profile.TarvolinPath();
    values.logMessages = profile.LogMessages() ? MainWindowValues::kChecked : 0;
    values.freeplay = profile.Freeplay() ? MainWindowValues::kChecked : 0;
    values.standardResolution = profile.UsePreDefinedResolution();
    values.resolution = profile.PreDefinedResolution();
    values.width = std::to_string(profile.ResolutionWidth());
    values.height = std::to_string(profile.ResolutionHeight());
    values.scenario = profile.ScenarioPath();
    values.graphicPack = profile.GraphicPakPath();
    values.refresh = profile.Refresh();
    return values;
}

void WriteInto(const MainWindowValues& values, Profile& profile) {
    profile.SetTarvolinPath(values.tarvolinPath);
    profile.SetLogMessages(values.logMessages == MainWindowValues::kChecked);
    profile.SetFreeplay(values.freeplay == MainWindowValues::kChecked);
    profile.SetUsePreDefinedResolution(values.standardResolution);
    profile.SetPreDefinedResolution(static_cast<int16_t>(values.resolution));
    profile.SetResolutionWidth(mString::ToInt16(values.width));
    profile.SetResolutionHeight(mString::ToInt16(values.height));
    profile.SetScenarioPath(values.scenario);
    profile.SetGraphicPakPath(values.graphicPack);
    profile.SetRefresh(static_cast<int16_t>(values.refresh));
}

}  // namespace frmMainRules

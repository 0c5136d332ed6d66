// One named set of game settings: what ends up on the game's command line, the path of the game's program
// file and a free description. The profile's settings-file section is its name.
#pragma once

#include <cstdint>
#include <string>

#include "storage/cIni_Profile.h"

class Profile {
public:
    // The text of the warning for a stored resolution ID below 1.
    static std::string InvalidResolutionWarning(int16_t id);

    // Filled by the collection with the profile's name when it adds the profile.
    std::string Key;

    const std::string& ProfileName() const { return m_profileName; }
    void SetProfileName(const std::string& value);

    bool DataChanged() const { return m_dataChanged; }
    void SetDataChanged(bool value) { m_dataChanged = value; }

    // The name as users see it: without a leading "profile_" in any case.
    std::string ProfileCaption() const;

    // The prefix of every profile's section name.
    static constexpr const char* kNamePrefix = "profile_";

    // True when the caption, behind the prefix, makes a section name that comes back from the settings file
    // unchanged: no "]" (it ends the header), ";" (it separates profile lists), "=", line break or other
    // control character, no blanks at either end, and not longer than a read gives back.
    static bool IsStorableCaption(const std::string& caption);

    // Reads every setting from the profile's section. A resolution ID below 1 is replaced by 1 after a
    // warning and counts as a change. Always returns false.
    bool LoadData();

    // Writes every setting as one update of the settings file and clears DataChanged.
    void SaveData();

    bool IsNewProfile() const { return m_isNewProfile; }
    void SetIsNewProfile(bool value) { m_isNewProfile = value; }

    bool LogMessages() const { return m_logMessages; }
    void SetLogMessages(bool value);
    bool Freeplay() const { return m_freeplay; }
    void SetFreeplay(bool value);
    bool UsePreDefinedResolution() const { return m_usePreDefinedResolution; }
    void SetUsePreDefinedResolution(bool value);
    int16_t PreDefinedResolution() const { return m_preDefinedResolution; }
    void SetPreDefinedResolution(int16_t value);
    int16_t ResolutionWidth() const { return m_resolutionWidth; }
    void SetResolutionWidth(int16_t value);
    int16_t ResolutionHeight() const { return m_resolutionHeight; }
    void SetResolutionHeight(int16_t value);
    const std::string& ScenarioPath() const { return m_scenarioPath; }
    void SetScenarioPath(const std::string& value);
    const std::string& GraphicPakPath() const { return m_graphicPakPath; }
    void SetGraphicPakPath(const std::string& value);
    const std::string& TarvolinPath() const { return m_tarvolinPath; }
    void SetTarvolinPath(const std::string& value);
    const std::string& ProfileDescription() const { return m_profileDescription; }
    void SetProfileDescription(const std::string& value);
    int16_t Refresh() const { return m_refresh; }
    void SetRefresh(int16_t value);

    // The game's arguments for this profile.
    std::string GetCmdLineParameters() const;

    // Starts the game after the confirmation (when that option is on); `lngHWND` is the calling window.
    // When the game cannot be started, the user is told why.
    void StartTarvolin(int64_t lngHWND);

    // True when the start may go ahead: at once when the confirmation is switched off, else unless the
    // confirmation window was cancelled.
    bool ShowStartTarvolinDialog();

    // The settings for people, one per line (lines end in CR LF, the last has none).
    std::string GetSettingsListAsText() const;

    static std::string GetStandardResolutionDescription(int32_t id);
    static std::string GetRefreshDescription(int32_t id);

private:
    template <class T>
    void Assign(T& field, const T& value);
    void ReadSettings();
    void CheckResolution();
    void TellWhyTheGameDidNotStart(int32_t shellResult) const;

    bool m_logMessages = true;
    bool m_freeplay = false;
    bool m_usePreDefinedResolution = true;
    int16_t m_preDefinedResolution = 2;
    int16_t m_resolutionWidth = 640;
    int16_t m_resolutionHeight = 480;
    std::string m_scenarioPath;
    std::string m_graphicPakPath;
    int16_t m_refresh = 1;
    bool m_loaded = false;
    std::string m_tarvolinPath;
    std::string m_profileDescription;
    bool m_dataChanged = false;
    cIni_Profile m_settings;
    std::string m_profileName;
    bool m_isNewProfile = false;
};

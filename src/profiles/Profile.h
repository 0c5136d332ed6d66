// One named set of game settings: what ends up on the game's command line, the path of the game's program
// file and a free description. The profile's settings-file section is its name.
#pragma once

#include <cstdint>
#include <string>
#include <type_traits>

#include "base/mString.h"
#include "profiles/ProfileSettings.h"
#include "storage/cIni_Profile.h"

class IniDocument;

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

    // Reads every setting from `section` of a profile handed in as text, by the rules of LoadData (numbers
    // are expected to have been checked).
    void LoadData(const IniDocument& document, const std::string& section);

    // Writes every setting as one update of the settings file and clears DataChanged.
    void SaveData();

    // Gives the profile's section in the settings file the name `to`, or removes it; each is one write of
    // the file. The profile's own name is its owner's to change.
    platform::WriteFault RenameData(const std::string& to) const { return m_settings.RenameSection(to); }
    platform::WriteFault DeleteData() const { return m_settings.DeleteSection(); }

    // Takes every setting of `source`; a setting that differs marks the profile changed.
    void CopySettingsFrom(const Profile& source);

    bool IsNewProfile() const { return m_isNewProfile; }
    void SetIsNewProfile(bool value) { m_isNewProfile = value; }

    // A stored setting's value, and its change: only a real change marks the profile changed, and a text
    // is kept on one line, whoever hands it in (the settings file holds each on one).
    template <class T>
    const T& Get(const ProfileSetting<T>& setting) const {
        return std::get<T>(m_values[setting.index]);
    }
    template <class T>
    void Set(const ProfileSetting<T>& setting, T value) {
        if constexpr (std::is_same_v<T, std::string>)
            value = mString::OneLine(value);
        Assign(std::get<T>(m_values[setting.index]), value);
    }

    // The property pairs that the windows and the command line use, as views over the settings.
    bool LogMessages() const { return Get(ProfileSettings::kLogMessages); }
    void SetLogMessages(bool value) { Set(ProfileSettings::kLogMessages, value); }
    bool Freeplay() const { return Get(ProfileSettings::kFreeplay); }
    void SetFreeplay(bool value) { Set(ProfileSettings::kFreeplay, value); }
    bool UsePreDefinedResolution() const { return Get(ProfileSettings::kUsePreDefinedResolution); }
    void SetUsePreDefinedResolution(bool value) { Set(ProfileSettings::kUsePreDefinedResolution, value); }
    int16_t PreDefinedResolution() const { return Get(ProfileSettings::kPreDefinedResolution); }
    void SetPreDefinedResolution(int16_t value) { Set(ProfileSettings::kPreDefinedResolution, value); }
    int16_t ResolutionWidth() const { return Get(ProfileSettings::kResolutionWidth); }
    void SetResolutionWidth(int16_t value) { Set(ProfileSettings::kResolutionWidth, value); }
    int16_t ResolutionHeight() const { return Get(ProfileSettings::kResolutionHeight); }
    void SetResolutionHeight(int16_t value) { Set(ProfileSettings::kResolutionHeight, value); }
    const std::string& ScenarioPath() const { return Get(ProfileSettings::kScenarioPath); }
    void SetScenarioPath(const std::string& value) { Set(ProfileSettings::kScenarioPath, value); }
    const std::string& GraphicPakPath() const { return Get(ProfileSettings::kGraphicPakPath); }
    void SetGraphicPakPath(const std::string& value) { Set(ProfileSettings::kGraphicPakPath, value); }
    const std::string& TarvolinPath() const { return Get(ProfileSettings::kTarvolinPath); }
    void SetTarvolinPath(const std::string& value) { Set(ProfileSettings::kTarvolinPath, value); }
    const std::string& ProfileDescription() const { return Get(ProfileSettings::kProfileDescription); }
    void SetProfileDescription(const std::string& value) { Set(ProfileSettings::kProfileDescription, value); }
    int16_t Refresh() const { return Get(ProfileSettings::kRefresh); }
    void SetRefresh(int16_t value) { Set(ProfileSettings::kRefresh, value); }

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
    void Assign(T& field, const T& value) {
        if (field == value)
            return;
        field = value;
        m_dataChanged = true;
    }
    // Reads every setting through `read`; a bad resolution is told before anything after it is read.
    template <class Read>
    void ReadSettings(const Read& read) {
        for (const ProfileSettings::Any& setting : ProfileSettings::kAll)
            std::visit([&](const auto* declared) { ReadSetting(*declared, read); }, setting);
    }
    template <class T, class Read>
    void ReadSetting(const ProfileSetting<T>& setting, const Read& read) {
        m_values[setting.index].template emplace<T>(read(setting));
        if (setting.index == ProfileSettings::kPreDefinedResolution.index)
            CheckResolution();
    }
    void CheckResolution();
    void TellWhyTheGameDidNotStart(int32_t shellResult) const;

    ProfileSettings::Values m_values = ProfileSettings::NewProfileValues();
    bool m_loaded = false;
    bool m_dataChanged = false;
    cIni_Profile m_settings;
    std::string m_profileName;
    bool m_isNewProfile = false;
};

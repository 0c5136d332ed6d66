// Every profile of the program, in the order they were added, looked up by name without regard to case.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "base/mString.h"
#include "profiles/Profile.h"
#include "storage/cIni_Profiles.h"

class Profiles {
public:
    // The fixed name of the standard profile.
    static constexpr const char* kStandardProfileName = "PROFILE_DEFAULT";

    // Creates a profile whose Key is `Key` and stores it under `sKey` (without a key when it is empty). A key
    // that equals an existing one without regard to case is refused with failure 457.
    Profile& Add(const std::string& Key, const std::string& sKey);

    // Runs the new-profile dialog; the new profile, now active, or nullptr.
    Profile* ShowAddNewDialog();

    // Adds `profile`, named already, as a new profile that is still to be saved, and makes it active.
    Profile& AddNew(std::unique_ptr<Profile> profile);

    // True for the standard profile's name in any case; it is never renamed or deleted.
    static bool IsStandardProfile(const std::string& name);

    // True when a profile other than `self` is named `name` (any case); the standard profile's name is
    // always taken, whether that profile exists or not.
    bool IsNameTaken(const std::string& name, const Profile* self = nullptr) const;

    // A caption for another profile made from one captioned `caption`: it followed by " (2)", or by the next
    // number that gives a free name, the caption shortened where the name would be too long to store.
    std::string FreeCaption(const std::string& caption) const;

    // Gives `profile` the name `name` here and its section in the settings file, with the remembered active
    // profile following, in one write of the file. When that write does not happen, says why and changes
    // nothing.
    platform::WriteFault Rename(Profile& profile, const std::string& name);

    // Removes `profile` with its section of the settings file, in one write. An active profile that was it
    // becomes the standard profile (made when there is none); the remembered one becomes the profile that
    // stays active. When the write does not happen,
    // says why and changes nothing. Never the standard profile (failure 5).
    platform::WriteFault Delete(Profile& profile);

    // By position (from 1) or by name; an unknown position fails with 9, an unknown name with 5.
    Profile& Item(int32_t index);
    Profile& Item(const std::string& name);

    int32_t Count() const { return static_cast<int32_t>(m_items.size()); }

    // Removes a profile from the collection (its section stays in the file).
    void Remove(int32_t index);
    void Remove(const std::string& name);

    // Iteration in insertion order.
    class Iterator;
    Iterator begin() const;
    Iterator end() const;

    // Finds the profile sections of the settings file and loads them; makes the standard profile when
    // there is none.
    void LoadData();

    // The profile chooser; the chosen profile or nullptr.
    Profile* ShowLoadProfileDialog();

    bool DoesProfileExist(const std::string& strProfileName) const;

    // Saves the profiles named in `strProfiles` (names joined by ";"), in that order, and says why they did
    // not reach the settings file; they then stay changed.
    platform::WriteFault SaveData(const std::string& strProfiles);

    // Remembers the application's active profile in the settings file.
    void SaveWhichProfileIsActive();

    bool DataChanged() const;

    // The names of the changed profiles joined by ";", as the save window hands them to SaveData.
    std::string ChangedProfileNames() const;

    std::string ReadFromIni_ActiveProfileName() const;

    void CreateStandardProfile();

private:
    struct Entry {
        std::string key;  // empty for a profile stored without a key
        std::unique_ptr<Profile> profile;
    };

    // The profile stored under `key` (any case), or nullptr.
    Profile* Find(const std::string& key) const;
    void Store(const std::string& key, std::unique_ptr<Profile> profile);
    void Erase(std::vector<Entry>::iterator entry);
    void LoadSection(const std::string& name);
    Profile& StandardProfile();
    std::vector<Entry>::iterator EntryOf(const Profile& profile);

    std::vector<Entry> m_items;
    std::unordered_map<std::string, Profile*, mString::NoCaseHash, mString::NoCaseEqual>
        m_byKey;  // key in any case
    cIni_Profiles m_settings;
};

class Profiles::Iterator {
public:
    using Base = std::vector<Entry>::const_iterator;
    explicit Iterator(Base position) : m_position(position) {}
    Profile& operator*() const { return *m_position->profile; }
    Profile* operator->() const { return m_position->profile.get(); }
    Iterator& operator++() {
        ++m_position;
        return *this;
    }
    bool operator==(const Iterator&) const = default;

private:
    Base m_position;
};

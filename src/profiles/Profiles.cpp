#include "profiles/Profiles.h"

#include <algorithm>
#include <string_view>

#include "app/Application.h"
#include "app/PublicObjects.h"
#include "app/UserInterface.h"
#include "app/mPath.h"
#include "base/mString.h"
#include "error/mError.h"
#include "platform/FileSystem.h"
#include "storage/IniEncoding.h"
#include "storage/iniFile.h"
#include "storage/mIni.h"
#include "translate/cTranslate.h"

namespace {

// The section names that make profiles: "[profile_" in any case, brackets included.
constexpr std::string_view kProfileHeader = "[profile_";

// A profile's name from one line of the settings file, or "" when the line is no profile header. The last
// character is dropped whatever it is: it is meant to be the closing bracket.
std::string ProfileNameOf(std::string_view line) {
    const std::string_view trimmed = mString::TrimView(line);
    if (trimmed.size() <= 2 || !mString::StartsWithNoCase(trimmed, kProfileHeader))
        return {};
    return std::string(trimmed.substr(1, trimmed.size() - 2));
}

}  // namespace

Profile& Profiles::Add(const std::string& Key, const std::string& sKey) try {
    if (!sKey.empty() && Find(sKey) != nullptr)
        mError::RaiseRuntimeError(mError::kDuplicateKey);
    auto profile = std::make_unique<Profile>();
    profile->Key = Key;
    Profile& added = *profile;
    Store(sKey, std::move(profile));
    return added;
} catch (...) {
    mError::PassOn("Profiles.Add");
}

void Profiles::Store(const std::string& key, std::unique_ptr<Profile> profile) {
    if (!key.empty())
        m_byKey.emplace(key, profile.get());
    m_items.push_back(Entry{key, std::move(profile)});
}

Profile* Profiles::Find(const std::string& key) const {
    const auto found = m_byKey.find(key);
    return found != m_byKey.end() ? found->second : nullptr;
}

void Profiles::Erase(std::vector<Entry>::iterator entry) {
    if (!entry->key.empty())
        m_byKey.erase(entry->key);
    m_items.erase(entry);
}

Profile& Profiles::Item(int32_t index) try {
    if (index < 1 || index > Count())
        mError::RaiseRuntimeError(mError::kSubscriptOutOfRange);
    return *m_items[static_cast<size_t>(index - 1)].profile;
} catch (...) {
    mError::PassOn("Profiles.Item");
}

Profile& Profiles::Item(const std::string& name) try {
    Profile* found = Find(name);
    if (found == nullptr)
        mError::RaiseRuntimeError(mError::kInvalidProcedureCall);
    return *found;
} catch (...) {
    mError::PassOn("Profiles.Item");
}

void Profiles::Remove(int32_t index) try {
    Item(index);
    Erase(m_items.begin() + (index - 1));
} catch (...) {
    mError::PassOn("Profiles.Remove");
}

void Profiles::Remove(const std::string& name) try { Erase(EntryOf(Item(name))); } catch (...) {
    mError::PassOn("Profiles.Remove");
}

Profiles::Iterator Profiles::begin() const {
    return Iterator(m_items.begin());
}

Profiles::Iterator Profiles::end() const {
    return Iterator(m_items.end());
}

Profile* Profiles::ShowAddNewDialog() try {
    auto profile = std::make_unique<Profile>();
    if (!Ui().ShowEditProfileDialog(1, *profile))
        return nullptr;
    if (DoesProfileExist(profile->ProfileName())) {
        Ui().MsgBox(
            Translator().TranslateEx("ERROR_MESSAGES", "ERR_ProfileNameNotUnique", profile->ProfileCaption()),
            vbOKOnly);
        return nullptr;
    }
    return &AddNew(std::move(profile));
} catch (...) {
    mError::PassOn("Profiles.ShowAddNewDialog");
}

Profile& Profiles::AddNew(std::unique_ptr<Profile> profile) try {
    if (Find(profile->ProfileName()) != nullptr)
        mError::RaiseRuntimeError(mError::kDuplicateKey);
    profile->Key = profile->ProfileName();
    profile->SetIsNewProfile(true);
    profile->SetDataChanged(true);
    Profile& added = *profile;
    Store(added.ProfileName(), std::move(profile));
    App().SetActiveProfile(&added);
    return added;
} catch (...) {
    mError::PassOn("Profiles.AddNew");
}

bool Profiles::IsStandardProfile(const std::string& name) {
    return mString::EqualsNoCase(name, kStandardProfileName);
}

bool Profiles::IsNameTaken(const std::string& name, const Profile* self) const {
    const Profile* found = Find(name);
    return IsStandardProfile(name) || (found != nullptr && found != self);
}

std::string Profiles::FreeCaption(const std::string& caption) const {
    for (int number = 2;; ++number) {
        const std::string suffix = " (" + std::to_string(number) + ")";
        const std::size_t room = mIni::kReadBufferSize - 1 - std::string_view(Profile::kNamePrefix).size();
        // A shortened caption ends before a whole character, never inside one.
        std::size_t cut = std::min(caption.size(), room - suffix.size());
        while (cut > 0 && cut < caption.size() && (static_cast<unsigned char>(caption[cut]) & 0xC0) == 0x80)
            --cut;
        std::string candidate = mString::TrimRight(caption.substr(0, cut)) + suffix;
        if (!IsNameTaken(Profile::kNamePrefix + candidate))
            return candidate;
    }
}

platform::WriteFault Profiles::Rename(Profile& profile, const std::string& name) try {
    const std::string old = profile.ProfileName();
    iniFile::Update save = m_settings.BeginSave();
    profile.RenameData(name);
    if (mString::EqualsNoCase(m_settings.Read_ActiveProfileName(), old))
        m_settings.Write_ActiveProfileName(name);
    const platform::WriteFault fault = save.Commit();
    if (fault != platform::WriteFault::None)
        return fault;
    const auto entry = EntryOf(profile);
    m_byKey.erase(entry->key);
    entry->key = name;
    m_byKey.emplace(name, &profile);
    profile.Key = name;
    profile.SetProfileName(name);
    return fault;
} catch (...) {
    mError::PassOn("Profiles.Rename");
}

platform::WriteFault Profiles::Delete(Profile& profile) try {
    if (IsStandardProfile(profile.ProfileName()))
        mError::RaiseRuntimeError(mError::kInvalidProcedureCall);
    iniFile::Update save = m_settings.BeginSave();
    profile.DeleteData();
    // The remembered profile becomes the one that stays active: the standard profile in place of a deleted
    // active one, else the active one.
    const Profile* active = App().ActiveProfile();
    if (mString::EqualsNoCase(m_settings.Read_ActiveProfileName(), profile.ProfileName()))
        m_settings.Write_ActiveProfileName(active == nullptr || active == &profile
                                               ? std::string(kStandardProfileName)
                                               : active->ProfileName());
    const platform::WriteFault fault = save.Commit();
    if (fault != platform::WriteFault::None)
        return fault;
    if (App().ActiveProfile() == &profile)
        App().SetActiveProfile(&StandardProfile());
    Erase(EntryOf(profile));
    return fault;
} catch (...) {
    mError::PassOn("Profiles.Delete");
}

std::vector<Profiles::Entry>::iterator Profiles::EntryOf(const Profile& profile) {
    return std::find_if(m_items.begin(), m_items.end(),
                        [&](const Entry& entry) { return entry.profile.get() == &profile; });
}

Profile& Profiles::StandardProfile() {
    if (Profile* standard = Find(kStandardProfileName))
        return *standard;
    CreateStandardProfile();
    return *m_items.back().profile;
}

void Profiles::LoadData() try {
    iniFile::Load load = m_settings.BeginLoad();
    const std::string& path = App().IniPath();
    if (mPath::FileExists(path)) {
        // A file that cannot be read is treated like a missing one: its profiles cannot be shown anyway.
        if (std::optional<platform::FileContent> content = platform::ReadFile(path)) {
            const DecodedIni decoded = DecodeIni(content->bytes);
            // Lines end at a carriage return, a line feed or both, as a text file read line by line has them.
            mString::ForEachLine(decoded.text, [this](const mString::Line& line) {
                const std::string name = ProfileNameOf(line.text);
                if (!name.empty())
                    LoadSection(name);
            });
        }
    }
    if (Count() == 0)
        CreateStandardProfile();
} catch (...) {
    mError::PassOn("Profiles.LoadData");
}

void Profiles::LoadSection(const std::string& name) {
    Profile& profile = Add(name, name);
    profile.SetProfileName(name);
    profile.LoadData();
}

Profile* Profiles::ShowLoadProfileDialog() try { return Ui().ShowLoadProfileDialog(); } catch (...) {
    mError::PassOn("Profiles.ShowLoadProfileDialog");
}

bool Profiles::DoesProfileExist(const std::string& strProfileName) const try {
    for (const Entry& entry : m_items) {
        if (mString::EqualsNoCase(entry.profile->ProfileName(), strProfileName))
            return true;
    }
    return false;
} catch (...) {
    mError::PassOn("Profiles.DoesProfileExist");
}

platform::WriteFault Profiles::SaveData(const std::string& strProfiles) try {
    if (strProfiles.empty())
        return platform::WriteFault::None;
    // One replacement of the file for the whole list; what was saved before a failure is kept. When the
    // replacement does not happen, every profile of the list stays changed.
    iniFile::Update save = m_settings.BeginSave();
    std::vector<Profile*> saved;
    for (const std::string& name : mString::Split(strProfiles, ';')) {
        saved.push_back(&Item(name));
        saved.back()->SaveData();
    }
    const platform::WriteFault fault = save.Commit();
    if (fault != platform::WriteFault::None) {
        for (Profile* profile : saved)
            profile->SetDataChanged(true);
    }
    return fault;
} catch (...) {
    mError::PassOn("Profiles.SaveData");
}

void Profiles::SaveWhichProfileIsActive() try {
    const Profile* active = App().ActiveProfile();
    if (active == nullptr)
        mError::RaiseRuntimeError(mError::kObjectVariableNotSet);
    m_settings.Write_ActiveProfileName(active->ProfileName());
} catch (...) {
    mError::PassOn("Profiles.SaveWhichProfileIsActive");
}

std::string Profiles::ChangedProfileNames() const {
    std::string names;
    for (const Entry& entry : m_items) {
        if (!entry.profile->DataChanged())
            continue;
        names += (names.empty() ? "" : ";") + entry.profile->ProfileName();
    }
    return names;
}

bool Profiles::DataChanged() const {
    for (const Entry& entry : m_items) {
        if (entry.profile->DataChanged())
            return true;
    }
    return false;
}

std::string Profiles::ReadFromIni_ActiveProfileName() const try {
    return m_settings.Read_ActiveProfileName();
} catch (...) {
    mError::PassOn("Profiles.ReadFromIni_ActiveProfileName");
}

void Profiles::CreateStandardProfile() try {
    Profile& profile = Add(kStandardProfileName, kStandardProfileName);
    profile.SetProfileName(kStandardProfileName);
    profile.SetProfileDescription(Translator().TranslateEx("GLOBAL", "STANDARD_PROFILE_DESC"));
} catch (...) {
    mError::PassOn("Profiles.CreateStandardProfile");
}

// The one exception type of the program. It travels from where something went wrong up to the event that
// started the action; every procedure on the way puts its name in front of the source, so the source ends up
// as the trail from the entry point down to the origin.
#pragma once

#include <cstdint>
#include <exception>
#include <string>

class Failure : public std::exception {
public:
    // The source a failure has when it is first raised, before any procedure name is put in front.
    static constexpr const char* kOriginSource = "Pavonel";

    Failure(int32_t number, std::string description, std::string source = kOriginSource);

    int32_t Number() const noexcept { return m_number; }
    const std::string& Description() const noexcept { return m_description; }
    const std::string& Source() const noexcept { return m_source; }

    // Puts "procedure", a line break and the previous source in place of the source.
    void PrependSource(const std::string& procedure);

    const char* what() const noexcept override { return m_description.c_str(); }

private:
    int32_t m_number;
    std::string m_description;
    std::string m_source;
};

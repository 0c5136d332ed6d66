#include "error/Failure.h"

#include <utility>

Failure::Failure(int32_t number, std::string description, std::string source)
    : m_number(number), m_description(std::move(description)), m_source(std::move(source)) {}

// The trail's names stand on lines of their own, ended as the report's lines are. Failures stand below the
// text helpers (which raise them), so the break is spelled here.
void Failure::PrependSource(const std::string& procedure) {
    m_source = procedure + "\r\n" + m_source;
}

#include "error/Failure.h"

#include <utility>

#include "base/mString.h"

Failure::Failure(int32_t number, std::string description, std::string source)
    : m_number(number), m_description(std::move(description)), m_source(std::move(source)) {}

void Failure::PrependSource(const std::string& procedure) {
    m_source = procedure + mString::kCrLf + m_source;
}

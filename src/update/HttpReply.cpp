#include "update/HttpReply.h"

#include <algorithm>
#include <charconv>

#include "base/mString.h"
#include "update/DownloadRules.h"

namespace update {
namespace {

constexpr int kStatusOk = 200;
// A chunk's size line is a few hex digits; anything this long is no size line.
constexpr std::size_t kMaxSizeLine = 1024;

bool IsCleanHead(std::string_view head) {
    return std::none_of(head.begin(), head.end(), [](char c) {
        const auto byte = static_cast<unsigned char>(c);
        return (byte < 0x20 && c != '\t' && c != '\r' && c != '\n') || byte == 0x7F;
    });
}

std::string_view WithoutCarriageReturn(std::string_view line) {
    if (!line.empty() && line.back() == '\r')
        line.remove_suffix(1);
    return line;
}

// A whole number written in `base` with nothing around it but blanks, or nothing.
bool ParseNumber(std::string_view text, int base, std::size_t& number) {
    text = mString::TrimView(text, " \t");
    const char* end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number, base);
    return !text.empty() && error == std::errc() && stop == end;
}

}  // namespace

HttpReply::State HttpReply::Fail(std::string error) {
    m_error = std::move(error);
    m_state = State::Failed;
    m_pending.clear();
    m_body.clear();
    return m_state;
}

HttpReply::State HttpReply::TooLong() {
    return Fail(LengthRefusal(m_maxBody));
}

HttpReply::State HttpReply::Feed(std::string_view bytes) {
    if (m_state == State::Done || m_state == State::Failed)
        return m_state;
    m_pending.append(bytes);
    return m_state == State::Head ? ReadHead() : ReadBody();
}

HttpReply::State HttpReply::End() {
    if (m_state == State::Body && m_framing == Framing::UntilClosed) {
        m_state = State::Done;
        return m_state;
    }
    if (m_state == State::Head || m_state == State::Body)
        return Fail(kCutShort);
    return m_state;
}

HttpReply::State HttpReply::ReadHead() {
    std::size_t end = m_pending.find("\r\n\r\n");
    std::size_t separator = 4;
    const std::size_t bare = m_pending.find("\n\n");
    if (bare < end)
        end = bare, separator = 2;
    // Until the blank line is there, up to three of its bytes may already have arrived.
    if (end == std::string::npos ? m_pending.size() > kMaxHead + 3 : end > kMaxHead)
        return Fail("the reply's head is longer than " + std::to_string(kMaxHead / 1024) + " KiB");
    if (end == std::string::npos)
        return m_state;
    const std::string_view head(m_pending.data(), end);
    if (!IsCleanHead(head))
        return Fail("a malformed reply");
    bool first = true;
    bool valid = true;
    mString::ForEachLine(head, [&](const mString::Line& line) {
        valid = valid && (first ? ReadStatusLine(line.text) : ReadHeader(line.text));
        first = false;
    });
    if (!valid)
        return Fail("a malformed reply");
    m_pending.erase(0, end + separator);
    return StartBody();
}

bool HttpReply::ReadStatusLine(std::string_view line) {
    line = WithoutCarriageReturn(line);
    const bool shaped = line.size() >= 12 && line.substr(0, 7) == "HTTP/1." && line[8] == ' ' &&
                        (line.size() == 12 || line[12] == ' ');
    std::size_t status = 0;
    if (!shaped || !ParseNumber(line.substr(9, 3), 10, status) || status < 100)
        return false;
    m_status = static_cast<int>(status);
    return true;
}

bool HttpReply::ReadHeader(std::string_view line) {
    line = WithoutCarriageReturn(line);
    const std::size_t colon = line.find(':');
    if (colon == std::string_view::npos || colon == 0)
        return false;
    const std::string_view name = line.substr(0, colon);
    const std::string_view value = mString::TrimView(line.substr(colon + 1), " \t");
    if (mString::EqualsNoCase(name, "Content-Length")) {
        // A chunked reply ignores its length.
        if (m_framing != Framing::Chunked)
            m_framing = Framing::Length;
        std::size_t length = 0;
        const bool valid = ParseNumber(value, 10, length);
        m_length = m_framing == Framing::Length ? length : 0;
        return valid;
    }
    if (mString::EqualsNoCase(name, "Transfer-Encoding") && mString::EqualsNoCase(value, "chunked"))
        m_framing = Framing::Chunked;
    else if (mString::EqualsNoCase(name, "Location"))
        m_location = value;
    return true;
}

HttpReply::State HttpReply::StartBody() {
    // An interim reply (100 Continue, 103 Early Hints) is followed by the real one; a server sends a few.
    if (m_status < 200) {
        if (++m_interimReplies > kMaxInterimReplies)
            return Fail("a malformed reply");
        m_location.clear();
        m_framing = Framing::UntilClosed;
        m_length = 0;
        return ReadHead();
    }
    if (m_status != kStatusOk) {
        m_state = State::Done;
        return m_state;
    }
    if (m_framing == Framing::Length && m_length > m_maxBody)
        return TooLong();
    m_state = State::Body;
    return ReadBody();
}

HttpReply::State HttpReply::ReadBody() {
    if (m_framing == Framing::Chunked)
        return ReadChunks();
    std::string_view taken = m_pending;
    if (m_framing == Framing::Length)
        taken = taken.substr(0, m_length - m_body.size());
    const State state = Append(taken);
    m_pending.clear();
    if (state == State::Body && m_framing == Framing::Length && m_body.size() == m_length)
        m_state = State::Done;
    return m_state;
}

HttpReply::State HttpReply::ReadChunks() {
    while (m_state == State::Body) {
        if (!m_inChunk) {
            const std::size_t lineEnd = m_pending.find('\n');
            if (lineEnd == std::string::npos)
                return m_pending.size() > kMaxSizeLine ? Fail("a malformed reply") : m_state;
            const std::string_view line =
                WithoutCarriageReturn(std::string_view(m_pending).substr(0, lineEnd));
            if (!ParseNumber(line.substr(0, line.find(';')), 16, m_length))
                return Fail("a malformed reply");
            m_pending.erase(0, lineEnd + 1);
            if (m_length > m_maxBody - m_body.size())
                return TooLong();
            if (m_length == 0) {
                m_state = State::Done;
                break;
            }
            m_inChunk = true;
        }
        const std::size_t take = std::min(m_length, m_pending.size());
        if (Append(std::string_view(m_pending).substr(0, take)) == State::Failed)
            return m_state;
        m_pending.erase(0, take);
        m_length -= take;
        if (m_length > 0 || m_pending.size() < 2)
            return m_state;
        if (m_pending.compare(0, 2, "\r\n") != 0)
            return Fail("a malformed reply");
        m_pending.erase(0, 2);
        m_inChunk = false;
    }
    return m_state;
}

HttpReply::State HttpReply::Append(std::string_view bytes) {
    if (m_body.size() + bytes.size() > m_maxBody)
        return TooLong();
    m_body.append(bytes);
    m_state = State::Body;
    return m_state;
}

}  // namespace update

// An HTTP/1.1 reply read as its bytes arrive, within limits that no server can push past: a head of at most
// kMaxHead bytes, a body of at most the caller's limit, announced or sent, with or without a length, in
// chunks or until the connection closes. Anything malformed (a NUL or a bare control character in the head,
// a status line that is not HTTP/1.x with three digits, a bad length or chunk size) fails the reply.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace update {

class HttpReply {
public:
    static constexpr std::size_t kMaxHead = 16 * 1024;
    static constexpr int kMaxInterimReplies = 8;

    enum class State { Head, Body, Done, Failed };

    explicit HttpReply(std::size_t maxBody) : m_maxBody(maxBody) {}

    // Takes the next bytes received. A reply whose status is not 200 is done with its head: its body is
    // never wanted.
    State Feed(std::string_view bytes);
    // The server closed the connection: a body without a length ends here, anything else was cut short.
    State End();

    State Current() const { return m_state; }
    int Status() const { return m_status; }
    // The "Location" header, "" when there is none.
    const std::string& Location() const { return m_location; }
    const std::string& Body() const { return m_body; }
    // Why the reply failed, for the user.
    const std::string& Error() const { return m_error; }

private:
    enum class Framing { UntilClosed, Length, Chunked };

    State Fail(std::string error);
    State TooLong();
    State ReadHead();
    bool ReadStatusLine(std::string_view line);
    bool ReadHeader(std::string_view line);
    State StartBody();
    State ReadBody();
    State ReadChunks();
    State Append(std::string_view bytes);

    std::size_t m_maxBody;
    State m_state = State::Head;
    std::string m_pending;  // received and not yet taken apart
    int m_status = 0;
    std::string m_location;
    Framing m_framing = Framing::UntilClosed;
    std::size_t m_length = 0;  // the announced length, or what is left of the current chunk
    bool m_inChunk = false;    // between a chunk's size line and its end
    int m_interimReplies = 0;
    std::string m_body;
    std::string m_error;
};

}  // namespace update

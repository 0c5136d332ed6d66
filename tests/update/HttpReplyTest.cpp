// The reply reader against replies as servers send them, whole and split at every byte: the same outcome
// either way. The download's own tests cover plain replies, lengths and the limits through a real
// connection; these are the framings and the malformed heads.
#include "update/HttpReply.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using update::HttpReply;
using State = HttpReply::State;

struct Case {
    const char* name;
    std::string bytes;
    bool closed;  // the server closes the connection after the bytes
    State state;
    int status = 0;
    std::string body = "";
};

constexpr std::size_t kMax = 16;

// The state after `bytes`, fed in pieces of `piece` bytes.
HttpReply Read(const Case& c, std::size_t piece) {
    HttpReply reply(kMax);
    for (std::size_t at = 0; at < c.bytes.size(); at += piece)
        reply.Feed(std::string_view(c.bytes).substr(at, piece));
    if (c.closed)
        reply.End();
    return reply;
}

TEST(HttpReplyTest, ReadsWhatServersSendWholeOrInPieces) {
    const std::string ok = "HTTP/1.1 200 OK\r\n";
    const Case cases[] = {
        {"bare line feeds", "HTTP/1.0 200 OK\nContent-Length: 2\n\nhi", false, State::Done, 200, "hi"},
        {"still open", ok + "\r\npart", false, State::Body, 200, "part"},
        {"chunked", ok + "Transfer-Encoding: chunked\r\n\r\n3;x=y\r\nabc\r\nA\r\n0123456789\r\n0\r\n\r\n",
         false, State::Done, 200, "abc0123456789"},
        {"chunked wins over a length",
         ok + "Content-Length: 99\r\nTransfer-Encoding: chunked\r\n\r\n1\r\nx\r\n0\r\n", false, State::Done,
         200, "x"},
        {"redirect without its body", "HTTP/1.1 302 Found\r\nLocation: /next\r\n\r\nignored", false,
         State::Done, 302},
        {"chunks too long", ok + "Transfer-Encoding: chunked\r\n\r\n9\r\n123456789\r\n9\r\n", false,
         State::Failed},
        {"after an interim reply",
         "HTTP/1.1 103 Early Hints\r\nLink: x\r\n\r\n" + ok + "Content-Length: 1\r\n\r\nz", false,
         State::Done, 200, "z"},
        {"head of exactly the limit",
         ok + "X: " + std::string(HttpReply::kMaxHead - ok.size() - 3, 'a') + "\r\n\r\n", false, State::Body,
         200},
        {"closed in the head", "HTTP/1.1 200", true, State::Failed},
        {"head too long", ok + "X: " + std::string(HttpReply::kMaxHead, 'a'), false, State::Failed},
        {"NUL in the status line", std::string("HTTP/1.1 200\0 OK\r\n\r\n", 20), false, State::Failed},
        {"no HTTP/1", "HTTP/2 200 OK\r\n\r\n", false, State::Failed},
        {"letters as status", "HTTP/1.1 2x0 OK\r\n\r\n", false, State::Failed},
        {"header without a colon", ok + "Broken\r\n\r\n", false, State::Failed},
        {"length with letters", ok + "Content-Length: 5x\r\n\r\n", false, State::Failed},
        {"chunk size no number", ok + "Transfer-Encoding: chunked\r\n\r\nzz\r\n", false, State::Failed},
        {"chunk without its end", ok + "Transfer-Encoding: chunked\r\n\r\n1\r\nxyz", false, State::Failed},
        {"chunk size overflows", ok + "Transfer-Encoding: chunked\r\n\r\nFFFFFFFFFFFFFFFFFF\r\n", false,
         State::Failed}};
    for (const Case& c : cases) {
        for (const std::size_t piece : {c.bytes.size() + 1, std::size_t{1}}) {
            const HttpReply reply = Read(c, piece);
            EXPECT_EQ(reply.Current(), c.state) << c.name << ", pieces of " << piece;
            EXPECT_EQ(reply.Body(), c.body) << c.name;
            if (c.state != State::Failed)
                EXPECT_EQ(reply.Status(), c.status) << c.name;
            else
                EXPECT_FALSE(reply.Error().empty()) << c.name;
        }
    }
    EXPECT_EQ(Read(cases[4], 1).Location(), "/next");
}

}  // namespace

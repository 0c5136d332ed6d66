// The ways a server or an address can answer the download of the update file, and what a download must make
// of each: one table for the downloads of both faces. TestHttpServer serves each case's route at "/".
#pragma once

#include <gtest/gtest.h>

#include <chrono>
#include <ostream>
#include <string>
#include <vector>

#include "support/TestHttpServer.h"
#include "update/DownloadRules.h"

struct DownloadCase {
    const char* name;
    TestHttpServer::Route route;  // served at "/"
    std::string body{};
    const char* failure = "";  // empty when the download finishes
    std::string address{};     // when not the server's "/"
};

// A short time limit, so that the slow cases end soon.
inline constexpr update::Limits kDownloadCaseLimits{std::chrono::seconds(1), 64 * 1024, 5};

std::vector<DownloadCase> DownloadCases();
// The routes the cases lead to besides their own: "/update", and the redirects "/hop1", "/hop2", ... to
// it, so that from "/hop1" on "/update" is as many redirects away as are allowed.
void ServeDownloadRoutes(TestHttpServer& server);
// No more requests than the allowed redirects and one, each to the server itself and as the program.
void ExpectOnlyItsOwnHostAsked(const TestHttpServer& server);

void PrintTo(const DownloadCase& c, std::ostream* out);
std::string DownloadCaseName(const testing::TestParamInfo<DownloadCase>& info);

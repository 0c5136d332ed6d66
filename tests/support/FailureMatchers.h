// Runs a piece of code that must fail and hands back the Failure it raised.
#pragma once

#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "base/mString.h"
#include "error/Failure.h"

template <class Body>
std::optional<Failure> FailureOf(Body&& body) {
    try {
        body();
    } catch (const Failure& failure) {
        return failure;
    }
    return std::nullopt;
}

// The procedure names of a failure's trail, entry point first, without the origin.
inline std::vector<std::string> TrailOf(const Failure& failure) {
    std::vector<std::string> trail = mString::Split(failure.Source(), '\n');
    for (std::string& name : trail) {
        if (!name.empty() && name.back() == '\r')
            name.pop_back();
    }
    trail.pop_back();
    return trail;
}

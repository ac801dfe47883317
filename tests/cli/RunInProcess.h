#pragma once

#include "cli/Run.h"
#include "tests/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <sstream>
#include <string>
#include <vector>

namespace tintra::cli {

using Json = nlohmann::ordered_json;

struct Result {
    int status;
    std::string out, err;

    Json json() const { return Json::parse(out); }
};

inline Result tintra(const std::vector<std::string>& arguments, const std::string& input = "") {
    std::istringstream in(input);
    Result result{};
    Console console{in, [&](std::string_view text) { result.out += text; },
                    [&](std::string_view text) { result.err += text; }};
    result.status = run(arguments, console);
    return result;
}

inline std::vector<std::string> keys(const Json& object) {
    std::vector<std::string> names;
    for (const auto& [key, value] : object.items())
        names.push_back(key);
    return names;
}

/// A folder of its own for a test, removed at its end.
class CommandsWithFiles : public testing::Test {
protected:
    std::string file(const std::string& name, const std::string& bytes) const {
        return folder.write(name, bytes).string();
    }
    std::string content(const std::string& name) const { return folder.content(name); }
    std::string path(const std::string& name) const { return (folder / name).string(); }

    const TemporaryFolder folder;
};

} // namespace tintra::cli

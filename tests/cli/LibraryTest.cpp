#include "tests/cli/RunInProcess.h"

#include <gmock/gmock.h>

#include <chrono>
#include <filesystem>

namespace tintra::cli {
namespace {

using testing::HasSubstr;

class Library : public CommandsWithFiles {
protected:
    Library() {
        file("Tone 10.gpl", "GIMP Palette\n30 77 107\tHarbour\n255 0 0\n");
        file("Tone 9.gpl", "GIMP Palette\n31 77 107\n");
        file("Sheet.css", ":root { --sea: #0000ff; --sun: #ffff00; --sky: #00ffff; }");
        using namespace std::chrono;
        const sys_seconds date = sys_days{2001y / February / 3} + 4h + 5min + 6s;
        std::filesystem::last_write_time(path("Tone 9.gpl"), file_clock::from_sys(date));
    }
    Result library(std::vector<std::string> arguments) const {
        arguments.insert(arguments.begin(), {"library", path("")});
        return tintra(arguments);
    }
    std::string names(std::vector<std::string> arguments) const {
        arguments.emplace_back("--json");
        std::string all;
        const auto json = library(arguments).json();
        for (const auto& palette : json["palettes"])
            all += palette["name"].get<std::string>() + ",";
        return all;
    }
};

TEST_F(Library, ListsSortsAndFinds) {
    EXPECT_EQ(names({}), "Tone 9,Tone 10,");
    EXPECT_EQ(names({"--stylesheets", "--descending"}), "Tone 10,Tone 9,Sheet,");
    EXPECT_EQ(names({"--stylesheets", "--sort", "size"}), "Tone 9,Tone 10,Sheet,");
    EXPECT_EQ(names({"--sort", "date", "--descending"}), "Tone 10,Tone 9,");
    EXPECT_EQ(names({"--find", "HARBOUR"}), "Tone 10,");
    EXPECT_EQ(names({"--find", "tone 9"}), "Tone 9,");
    EXPECT_EQ(names({"--find", "#1e4d6b", "--match", "exact"}), "Tone 9,Tone 10,");
    EXPECT_EQ(library({"--find", "harbour"}).out,
              "    2  Tone 10  " + path("Tone 10.gpl") + "  #1E4D6B Harbour\n");
}

TEST_F(Library, AnswersTheShapeOfTheContract) {
    const auto json = library({"--json", "--find", "1e4d6b", "--match", "hue"}).json();
    const auto& first = json["palettes"][0];
    EXPECT_EQ(keys(first),
              (std::vector<std::string>{"name", "path", "location", "count", "modified", "match"}));
    EXPECT_EQ(first["path"], path("Tone 9.gpl"));
    EXPECT_EQ(first["location"], path(""));
    EXPECT_EQ(first["modified"], "2001-02-03T04:05:06Z");
    const auto& match = json["palettes"][1]["match"];
    EXPECT_EQ(keys(match), (std::vector<std::string>{"index", "distance", "swatch"}));
    EXPECT_EQ(match["index"], 0);
    EXPECT_EQ(match["distance"], 0.0);
    EXPECT_EQ(match["swatch"]["name"], "Harbour");
    const auto byName = library({"--json", "--find", "tone"}).json()["palettes"][0]["match"];
    EXPECT_EQ(byName, Json::parse(R"({"index": null, "distance": null, "swatch": null})"));
    EXPECT_TRUE(library({"--json"}).json()["palettes"][0]["match"].is_null());
}

TEST_F(Library, ReportsWhatItCannotReadAndWhatItDoesNotFind) {
    const auto nothing = library({"--find", "#a00000", "--match", "exact"});
    EXPECT_EQ(nothing.status, 1);
    EXPECT_EQ(nothing.out, "");
    EXPECT_THAT(nothing.err, HasSubstr("--match hue would find 1\n"));
    EXPECT_EQ(library({"--find", "facade"}).status, 1);
    const auto broken = file("Broken.ase", "ASEF");
    const auto some = tintra({"library", path(""), path("absent")});
    EXPECT_EQ(some.status, 1);
    EXPECT_THAT(some.out, HasSubstr("Tone 10"));
    EXPECT_EQ(some.err, "tintra: " + path("absent") + ": No such file or directory\n" + //
                            "tintra: " + broken + ": no swatches in it that can be read\n");
}

} // namespace
} // namespace tintra::cli

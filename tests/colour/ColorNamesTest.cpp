#include "colour/ColorNames.h"

#include "colour/NameScan.h"
#include "platform/File.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <array>
#include <cmath>
#include <filesystem>
#include <limits>
#include <random>
#include <sstream>
#include <string>
#include <thread>
#include <variant>
#include <vector>

namespace tintra {
namespace {

/// A list that is a file while the test lives.
class ListFile {
public:
    explicit ListFile(std::string_view lines)
        : path_(testing::TempDir() + "tintra-names-" + std::to_string(getpid()) + ".tsv") {
        EXPECT_FALSE(writeFile(path_, asBytes(lines), Existing::replace));
    }
    ~ListFile() { std::filesystem::remove(path_); }
    ListFile(const ListFile&) = delete;
    ListFile& operator=(const ListFile&) = delete;

    const std::filesystem::path& path() const { return path_; }

private:
    std::filesystem::path path_;
};

WashColor colourOf(const char* hex) {
    return WashColor::fromHex(hex).value();
}

TEST(ColorNamesList, ReadsLinesAndPassesOverTheRest) {
    const ListFile list("ff0000\n" // no tab
                        "\n"
                        "#gg0000\tNo Colour\n"
                        "\t\n"
                        "#00ff00\tGreen\tof tabs\n"
                        " 00F \tShort Blue\n"
                        "0xFF000080\tClear Red\n"
                        "#ffffff\t\n"
                        "#000000\tLast"); // no line feed
    ColorNames names(list.path());
    EXPECT_EQ(names.name(colourOf("0f0")), "Green\tof tabs");
    EXPECT_EQ(names.name(colourOf("0000fe")), "Short Blue");
    EXPECT_EQ(names.name(colourOf("ff0000")), "Clear Red");
    EXPECT_EQ(names.name(colourOf("ffffff")), "");
    EXPECT_EQ(names.name(colourOf("010101")), "Last");
}

TEST(ColorNamesList, TheFirstOfEquallyNearNamesWins) {
    const ListFile list("#808080\tFirst\n#808080\tSecond\n#ff0000\tRed\n#ff0000\tAlso Red\n");
    ColorNames names(list.path());
    EXPECT_EQ(names.name(colourOf("808080")), "First");
    EXPECT_EQ(names.name(colourOf("7f7f7f")), "First");
    EXPECT_EQ(names.name(colourOf("fe0000")), "Red");
}

TEST(ColorNamesList, WithoutOneColoursAreTheirOwnNames) {
    ColorNames missing("/nonexistent/list.tsv");
    EXPECT_EQ(missing.name({1, 0.5, 0, 0.25}), "#FF8000");
    EXPECT_EQ(missing.name({1, 0.5, 0, 0.25}), "#FF8000");
    const ListFile garbled("#ff8000\tOrange\n#000000\tNo\xFFir\n"); // not UTF-8
    EXPECT_EQ(ColorNames(garbled.path()).name({1, 0.5, 0, 1}), "#FF8000");
}

TEST(ColorNamesList, IsReadOnce) {
    const ListFile list("#ff0000\tRed\n");
    ColorNames names(list.path());
    names.loadIfNeeded();
    std::filesystem::remove(list.path());
    EXPECT_EQ(names.name(colourOf("000000")), "Red");

    ColorNames late(list.path());
    late.loadIfNeeded(); // fails, and that stands
    EXPECT_FALSE(writeFile(list.path(), asBytes("#ff0000\tRed\n"), Existing::replace));
    EXPECT_EQ(late.name(colourOf("ff0000")), "#FF0000");
}

TEST(ColorNamesKey, RoundsTo8BitsAndForgetsAlpha) {
    // Between the greys of bytes 100 and 101 the rounding decides, not the nearer grey.
    const ListFile list("#646464\tHundred\n#656565\tNext\n");
    ColorNames names(list.path());
    const auto grey = [&names](double byte, double alpha) {
        return names.name({byte / 255, byte / 255, byte / 255, alpha});
    };
    EXPECT_EQ(grey(100.49, 1), "Hundred");
    EXPECT_EQ(grey(100.51, 1), "Next");
    EXPECT_EQ(grey(100.49, 0), "Hundred");
    EXPECT_EQ(names.name({std::nan(""), 0, 0, 1}), "Hundred");
    EXPECT_EQ(names.name({HUGE_VAL, 0, 0, 1}), "Hundred"); // as far from one as from the other
}

TEST(ColorNamesKey, ColoursOutsideSrgbAreFoundWhereTheyLie) {
    // (1.5, 0, 0) is 2.54 times the light of red and so 1.36 times its OKLab: nearer to the lighter
    // one. Clamped it would be red itself.
    const ListFile list("#ff0000\tRed\n#ff6060\tLight\n");
    EXPECT_EQ(ColorNames(list.path()).name({1.5, 0, 0, 1}), "Light");
}

TEST(ColorNamesShipped, EveryThreadFindsTheEntriesThemselves) {
    const auto file = readFile(TINTRA_NAMES);
    std::istringstream lines(std::string(asText(std::get<Bytes>(file))));
    std::vector<std::string> codes, expected;
    std::size_t count = 0;
    for (std::string line; std::getline(lines, line); ++count) {
        if (count % 40 != 0) continue;
        codes.push_back(line.substr(0, 7));
        expected.push_back(line.substr(8));
    }
    ASSERT_GT(count, 30'000U);

    ColorNames names(TINTRA_NAMES);
    std::array<std::vector<std::string>, 4> answers;
    std::vector<std::thread> threads;
    threads.reserve(answers.size());
    for (auto& found : answers)
        threads.emplace_back([&found, &names, &codes] {
            for (const auto& code : codes)
                found.push_back(names.name(colourOf(code.c_str())));
        });
    for (auto& thread : threads)
        thread.join();
    for (const auto& found : answers)
        EXPECT_EQ(found, expected);
}

/// The scan as it is defined.
std::size_t oneByOne(const OklabColumns& colours, const Oklab& target) {
    double best = std::numeric_limits<double>::infinity();
    std::size_t place = 0;
    for (std::size_t i = 0; i < colours.L.size(); ++i) {
        const double dL = colours.L[i] - target.L, da = colours.a[i] - target.a,
                     db = colours.b[i] - target.b;
        const double distance = dL * dL + da * da + db * db;
        if (distance < best) {
            best = distance;
            place = i;
        }
    }
    return place;
}

struct Columns {
    std::vector<double> L, a, b;

    void add(const Oklab& colour) {
        L.push_back(colour.L);
        a.push_back(colour.a);
        b.push_back(colour.b);
    }
    OklabColumns view() const { return {L, a, b}; }
};

/// Random 8-bit colours, so many that a block is not filled, each some times over for ties.
Columns randomColumns(std::mt19937& random, std::size_t count) {
    Columns columns;
    const auto coarse = [&random] { return static_cast<double>(random() % 6) / 5; };
    for (std::size_t i = 0; i < count; ++i)
        columns.add(WashColor{coarse(), coarse(), coarse(), 1}.oklab());
    return columns;
}

TEST(NameScan, EveryWayAnswersAsOneByOne) {
    std::mt19937 random(7); // NOLINT(cert-msc32-c,cert-msc51-cpp): the same colours in every run
    const auto anywhere = [&random] { return static_cast<double>(random() % 4096) / 4096; };
    for (const std::size_t count : {1U, 15U, 16U, 17U, 511U, 513U, 2100U}) {
        const auto columns = randomColumns(random, count);
        for (int i = 0; i < 200; ++i) {
            const auto target = WashColor{anywhere(), anywhere(), anywhere(), 1}.oklab();
            for (const auto& [title, scan] : nameScans())
                ASSERT_EQ(scan(columns.view(), target), oneByOne(columns.view(), target))
                    << title << ' ' << count;
        }
    }
}

TEST(NameScan, BreaksTiesByPlaceWhereverTheyStand) {
    // Distances of 2^-8 on either side of the target are equal to the last bit.
    for (const std::size_t first : {0U, 5U, 16U, 511U, 512U, 700U})
        for (const std::size_t second : {first + 1, first + 16, first + 512}) {
            Columns columns;
            for (std::size_t i = 0; i < 1500; ++i)
                columns.add({0, 0, i == first ? 0.25 : i == second ? -0.25 : 0.5});
            for (const auto& [title, scan] : nameScans()) {
                EXPECT_EQ(scan(columns.view(), {}), first) << title << ' ' << second;
                EXPECT_EQ(scan(columns.view(), {0, 0, std::nan("")}), 0) << title;
            }
        }
}

} // namespace
} // namespace tintra

#pragma once

#include "state/ContrastBoard.h"
#include "state/SwatchIdentity.h"
#include "tests/support/FakeDesktop.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tintra {

/// Palettes of which only the colours matter.
class HeldColours final : public OpenPalettes {
public:
    std::optional<Sighting> swatch(const Uuid&, const Uuid&) const override { return {}; }
    Absence absence(const Uuid&) const override { return Absence::away; }
    std::optional<Sighting> swatch(const std::string&, std::size_t,
                                   const WashColor&) const override {
        return {};
    }
    bool holds(const WashColor& color) const override {
        return identities.contains(identityNumber(color));
    }
    std::set<std::uint32_t> identities;
};

class ContrastBoardTest : public testing::Test {
protected:
    /// A colour named after itself.
    Uuid send(const std::string& hex) { return *board.send(hex, *WashColor::fromHex(hex)); }
    std::vector<std::string> names() const {
        std::vector<std::string> names;
        for (const auto& entry : board.entries())
            names.push_back(entry.givenName.value_or("-"));
        return names;
    }

    FakeDesktop desktop{std::filesystem::path()};
    HeldColours palettes;
    ContrastBoard board{desktop.services, palettes};
};

} // namespace tintra

#pragma once

#include "colour/Lab.h"
#include "platform/ColourSpace.h"

#include <atomic>
#include <filesystem>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tintra {

/// The three choices of colour management: the RGB space of hex and 0-255 values, the CMYK profile
/// of CMYK values, and the white of Lab values. Choices are made on one thread; `rgbSpace`,
/// `cmykSpace` and `labIlluminant` may be asked on any. Every failure falls back silently.
class ColorProfiles {
public:
    /// A CMYK profile found on disk.
    struct Profile {
        std::string name; ///< the description that the profile carries
        std::filesystem::path path;
        bool operator==(const Profile&) const = default;
    };
    /// An RGB space that can be chosen.
    struct NamedSpace {
        std::string name;
        std::shared_ptr<const ColourSpace> space;
    };

    static constexpr std::string_view kDefaultRgb = "sRGB IEC61966-2.1";
    static constexpr std::string_view kDefaultCmyk = "Device CMYK";

    /// The instance of the running program, which scans `searchPaths`.
    static ColorProfiles& shared();

    /// Answers the folders to scan, in order; asked once, when they are scanned.
    using Folders = std::function<std::vector<std::filesystem::path>()>;
    explicit ColorProfiles(Folders folders);

    /// Where profiles are looked for on this system, most preferred first.
    static std::vector<std::filesystem::path> searchPaths();
    /// What `selectRGB` knows, in the order of menus.
    static const std::vector<NamedSpace>& rgbSpaces();

    /// An unknown name selects sRGB.
    void selectRGB(std::string_view name);
    /// An unknown name or an unusable profile selects "Device CMYK". Scans the folders when this
    /// has not been done.
    void selectCMYK(std::string_view name);
    /// Finds the CMYK profiles of the folders, once a run: files named .icc or .icm (in any case)
    /// that hold a CMYK profile which converts both ways; of two with one name the first found.
    void loadIfNeeded();

    /// Sorted as a file browser sorts names; empty before `loadIfNeeded`.
    const std::vector<Profile>& cmykProfiles() const { return cmykProfiles_; }
    const std::string& selectedRGB() const { return selectedRGB_; }
    const std::string& selectedCMYK() const { return selectedCMYK_; }

    const ColourSpace& rgbSpace() const { return *rgbSpace_.load(std::memory_order_acquire); }
    const ColourSpace& cmykSpace() const;
    LabIlluminant labIlluminant() const { return labIlluminant_; }
    void setLabIlluminant(LabIlluminant illuminant) { labIlluminant_ = illuminant; }

private:
    void selectSpace(std::shared_ptr<const ColourSpace> space, std::string_view name);
    std::shared_ptr<const ColourSpace> openProfile(std::string_view name) const;

    Folders folders_;
    bool loaded_ = false;
    std::vector<Profile> cmykProfiles_;
    std::string selectedRGB_{kDefaultRgb};
    std::string selectedCMYK_{kDefaultCmyk};
    std::atomic<const ColourSpace*> rgbSpace_;
    /// Null stands for the device CMYK space, which is not opened before somebody asks.
    std::atomic<const ColourSpace*> cmykSpace_ = nullptr;
    /// Spaces that were selected once stay alive: another thread may be converting through them.
    std::vector<std::shared_ptr<const ColourSpace>> selectedSpaces_;
    std::atomic<LabIlluminant> labIlluminant_ = LabIlluminant::d50;
};

/// The persisted text of an illuminant, "d50" or "d65".
std::string_view rawValue(LabIlluminant illuminant);
std::optional<LabIlluminant> labIlluminant(std::string_view raw);

/// Whether the colour lies outside what the CMYK space prints: its inks (as `WashColor::cmyk`
/// answers them, unrounded), brought back, differ from it by more than 0.02 in red, green or blue.
/// A space without four components or a refused conversion counts as inside.
bool isOutsideGamut(const struct WashColor& colour, const ColourSpace& cmykSpace);

} // namespace tintra

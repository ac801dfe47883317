#pragma once

#include "platform/Pictures.h"

#include <cstdint>
#include <vector>

namespace tintra {

enum class Opacity { opaque, translucent };

/// Reduces a picture row by row: every pixel of the result is the mean of the area it covers,
/// pixels on an edge counting by the part that lies inside, colours by their alpha. The sums are
/// whole numbers, so the result is exact to the rounding of its bytes, and only a row of the result
/// is held besides the result itself.
class AreaAverage {
public:
    /// Both sides of `to` are at least 1 and at most those of `from`.
    AreaAverage(PictureSize from, PictureSize to, Opacity opacity, AlphaForm form);

    /// The next row of `from`, not multiplied by alpha; rows beyond the last are passed over.
    void addRow(const std::uint8_t* rgba);

    /// Whether the last row was added.
    bool complete() const { return row_ == from_.height; }
    /// The reduced picture; rows not reached are transparent.
    PixelBuffer take() { return std::move(result_); }

private:
    /// Weighted sums of one pixel: red, green, blue (times alpha where translucent), alpha.
    struct Sums {
        std::uint64_t r = 0, g = 0, b = 0, a = 0;
        void add(const Sums& other, std::uint64_t weight);
    };

    void copyRow(const std::uint8_t* rgba);
    template <Opacity opacity>
    void sumColumns(const std::uint8_t* rgba);
    void addToRow(std::uint64_t weight);
    void finishRow();
    void store(const Sums& sums);

    PictureSize from_, to_;
    Opacity opacity_;
    AlphaForm form_;
    std::uint64_t area_; ///< the weight of a whole pixel of the result
    int row_ = 0;
    std::vector<Sums> columns_; ///< of the current row of `from`
    std::vector<Sums> sums_;    ///< of the current row of `to`
    PixelBuffer result_;
};

/// A straight pixel multiplied by its alpha, each byte rounded.
void premultiply(std::uint8_t* rgba);

} // namespace tintra

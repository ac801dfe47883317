#pragma once

#include "palettes/image/Sampling.h"

#include <cstddef>
#include <span>
#include <vector>

namespace tintra::ImagePalette {

/// Neighbouring samples, and the box around them.
struct Block {
    std::size_t begin = 0, end = 0; ///< in the order of SampleBlocks
    Lab middle;
    Lab half; ///< half the length of each side, rounded up
};

/// The samples put in an order in which neighbours in OKLab stand together, cut into blocks.
struct SampleBlocks {
    static constexpr std::size_t kBlockSize = 64;
    static constexpr std::size_t kBlocksInGroup = 8;

    explicit SampleBlocks(std::span<const Lab> samples);

    std::vector<std::uint32_t> order; ///< for each place, the index of its sample
    /// The samples in this order, zeros after them up to a whole block.
    std::vector<double> L, a, b;
    std::vector<Block> blocks; ///< of kBlockSize samples, the last of fewer
    std::vector<Block> groups; ///< of kBlocksInGroup blocks, the last of fewer

private:
    void fill(std::span<const Lab> samples);
    std::vector<Block> cut(std::size_t size) const;
};

} // namespace tintra::ImagePalette

#pragma once

#include "colour/NameScan.h"
#include "platform/Bytes.h"

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace tintra {

/// Named colours in the order of their file, whose bytes the list keeps; names are views into
/// them, so it is moved, never copied.
class NameList {
public:
    NameList() = default;
    /// From lines "HEX<TAB>NAME". A line without a tab or with a code that is no colour is passed
    /// over; a file that is not UTF-8 or of 4 GiB or more gives an empty list.
    explicit NameList(Bytes file);

    NameList(NameList&&) = default;
    NameList& operator=(NameList&&) = default;
    NameList(const NameList&) = delete;
    NameList& operator=(const NameList&) = delete;
    ~NameList() = default;

    bool empty() const { return names_.empty(); }
    /// The name of the first of the nearest colours; only of a list that is not empty.
    std::string_view nearest(const Oklab& colour) const;

private:
    void addLine(std::size_t begin, std::size_t end);

    Bytes file_;
    /// Where names begin in the file; they end with their line. No wider than the gigabyte that is
    /// read of a file needs: most of the time of a short run goes into fresh pages.
    std::vector<std::uint32_t> names_;
    std::vector<double> L_, a_, b_;
};

} // namespace tintra

#pragma once

#include "colour/NameScan.h"
#include "platform/Bytes.h"

#include <string_view>
#include <vector>

namespace tintra {

/// Named colours in the order of their file. The names are views into the file's bytes, which the
/// list keeps: it is moved, never copied.
class NameList {
public:
    NameList() = default;
    /// From lines "HEX<TAB>NAME". A line without a tab or with a code that is no colour is passed
    /// over; a file that is not UTF-8 gives an empty list.
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
    void add(std::string_view line);

    Bytes file_;
    std::vector<std::string_view> names_;
    std::vector<double> L_, a_, b_;
};

} // namespace tintra

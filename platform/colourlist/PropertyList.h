#pragma once

#include "platform/Bytes.h"

#include <plist/plist.h>

#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

// Property lists by libplist, with its nodes owned and its types checked. Internal to the
// colour-list service.

namespace tintra::colourlist {

/// A value inside a property list that somebody else owns. A value may be absent; it then answers
/// as one of the wrong type does.
class PlistValue {
public:
    PlistValue() = default;
    explicit PlistValue(plist_t node) : node_(node) {}

    explicit operator bool() const { return node_ != nullptr; }

    std::optional<std::uint64_t> integer() const;
    /// Whatever bytes the file holds, at most up to U+0000.
    std::optional<std::string_view> text() const;
    std::optional<std::string_view> data() const;
    /// The object number of a UID; XML writes it as a dictionary with the one key "CF$UID".
    std::optional<std::uint64_t> uid() const;

    /// The value under a key of a dictionary; absent for anything else.
    PlistValue operator[](const char* key) const;
    /// The elements of an array; none for anything else.
    std::vector<PlistValue> elements() const;

private:
    bool is(plist_type type) const;

    plist_t node_ = nullptr;
};

struct FreePlist {
    using pointer = plist_t;
    void operator()(plist_t node) const { plist_free(node); }
};
using PlistHandle = std::unique_ptr<void, FreePlist>;

/// The root of a binary or an XML property list; null when the bytes are none, and for lists that
/// nest deeper or unfold to more than any archive does.
PlistHandle parsePropertyList(ByteView data);

} // namespace tintra::colourlist

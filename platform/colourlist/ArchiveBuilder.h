#pragma once

#include "platform/Bytes.h"
#include "platform/colourlist/PropertyList.h"

#include <cstdint>
#include <initializer_list>
#include <optional>
#include <string_view>

// A keyed archive in the making. Internal to the colour-list service.

namespace tintra::colourlist {

/// Nodes that belong to whoever puts them into a property list.
plist_t dataNode(std::string_view bytes);
plist_t referenceNode(std::uint64_t object);

/// The numbered objects of an archive and its top. Every node that is added belongs to the builder.
class ArchiveBuilder {
public:
    ArchiveBuilder();

    /// The number by which others refer to the object.
    std::uint64_t add(plist_t object);
    /// The first of `names` is the class, the others what it descends from.
    std::uint64_t addClass(std::initializer_list<const char*> names);
    void setTop(const char* key, std::uint64_t object);

    /// The archive as a binary property list; nothing when it cannot be written.
    std::optional<Bytes> binary() const;

private:
    PlistHandle root_;
    plist_t objects_; // these two belong to the root
    plist_t top_;
    std::uint64_t count_ = 0;
};

} // namespace tintra::colourlist

#include "platform/colourlist/ArchiveBuilder.h"

namespace tintra::colourlist {

plist_t dataNode(std::string_view bytes) {
    return plist_new_data(bytes.data(), bytes.size());
}

plist_t referenceNode(std::uint64_t object) {
    return plist_new_uid(object);
}

ArchiveBuilder::ArchiveBuilder()
    : root_(plist_new_dict()), objects_(plist_new_array()), top_(plist_new_dict()) {
    constexpr int kVersion = 100000;
    plist_dict_set_item(root_.get(), "$version", plist_new_uint(kVersion));
    plist_dict_set_item(root_.get(), "$archiver", plist_new_string("NSKeyedArchiver"));
    plist_dict_set_item(root_.get(), "$top", top_);
    plist_dict_set_item(root_.get(), "$objects", objects_);
    add(plist_new_string("$null"));
}

std::uint64_t ArchiveBuilder::add(plist_t object) {
    plist_array_append_item(objects_, object);
    return count_++;
}

std::uint64_t ArchiveBuilder::addClass(std::initializer_list<const char*> names) {
    auto* const described = plist_new_dict();
    plist_dict_set_item(described, "$classname", plist_new_string(*names.begin()));
    auto* const chain = plist_new_array();
    for (const char* name : names)
        plist_array_append_item(chain, plist_new_string(name));
    plist_dict_set_item(described, "$classes", chain);
    return add(described);
}

void ArchiveBuilder::setTop(const char* key, std::uint64_t object) {
    plist_dict_set_item(top_, key, referenceNode(object));
}

std::optional<Bytes> ArchiveBuilder::binary() const {
    char* bytes = nullptr;
    std::uint32_t length = 0;
    plist_to_bin(root_.get(), &bytes, &length);
    if (bytes == nullptr) return std::nullopt;
    const auto view = asBytes(std::string_view(bytes, length));
    Bytes copy(view.begin(), view.end());
    plist_to_bin_free(bytes);
    return copy;
}

} // namespace tintra::colourlist

#include "platform/colourlist/PropertyList.h"

#include "platform/colourlist/PropertyListChecks.h"

#include <cstdlib>

namespace tintra::colourlist {

bool PlistValue::is(plist_type type) const {
    return node_ != nullptr && plist_get_node_type(node_) == type;
}

std::optional<std::uint64_t> PlistValue::integer() const {
    if (!is(PLIST_UINT)) return std::nullopt;
    std::uint64_t value = 0;
    plist_get_uint_val(node_, &value);
    return value;
}

std::optional<std::string_view> PlistValue::text() const {
    if (!is(PLIST_STRING)) return std::nullopt;
    const char* text = plist_get_string_ptr(node_, nullptr);
    return text == nullptr ? std::nullopt : std::optional(std::string_view(text));
}

std::optional<std::string_view> PlistValue::data() const {
    if (!is(PLIST_DATA)) return std::nullopt;
    std::uint64_t length = 0;
    const char* bytes = plist_get_data_ptr(node_, &length);
    return bytes == nullptr ? std::string_view() : std::string_view(bytes, length);
}

std::optional<std::uint64_t> PlistValue::uid() const {
    if (is(PLIST_UID)) {
        std::uint64_t value = 0;
        plist_get_uid_val(node_, &value);
        return value;
    }
    if (!is(PLIST_DICT) || plist_dict_get_size(node_) != 1) return std::nullopt;
    return (*this)["CF$UID"].integer();
}

PlistValue PlistValue::operator[](const char* key) const {
    return PlistValue(is(PLIST_DICT) ? plist_dict_get_item(node_, key) : nullptr);
}

std::vector<PlistValue> PlistValue::elements() const {
    if (!is(PLIST_ARRAY)) return {};
    std::vector<PlistValue> found;
    found.reserve(plist_array_get_size(node_));
    // By an iterator: asked for an index, libplist counts from the start of a parsed array.
    plist_array_iter iterator = nullptr;
    plist_array_new_iter(node_, &iterator);
    const std::unique_ptr<void, decltype(&std::free)> owner(iterator, &std::free);
    while (found.size() < found.capacity()) {
        plist_t element = nullptr;
        plist_array_next_item(node_, iterator, &element);
        if (element == nullptr) break;
        found.emplace_back(element);
    }
    return found;
}

PlistHandle parsePropertyList(ByteView data) {
    const auto text = asText(data);
    const auto length = static_cast<std::uint32_t>(data.size());
    plist_t root = nullptr;
    if (text.starts_with("bplist00")) {
        if (binaryUnfoldsModestly(data)) plist_from_bin(text.data(), length, &root);
    } else if (xmlNestsModestly(text)) {
        plist_from_xml(text.data(), length, &root);
    }
    return PlistHandle(root);
}

} // namespace tintra::colourlist

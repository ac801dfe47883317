#include "platform/colourlist/PropertyList.h"

#include "platform/colourlist/PropertyListChecks.h"

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

std::uint32_t PlistValue::size() const {
    return is(PLIST_ARRAY) ? plist_array_get_size(node_) : 0;
}

PlistValue PlistValue::at(std::uint64_t index) const {
    if (index >= size()) return PlistValue();
    return PlistValue(plist_array_get_item(node_, static_cast<std::uint32_t>(index)));
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

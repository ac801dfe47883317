#pragma once

#include "colour/NameList.h"
#include "colour/WashColor.h"

#include <filesystem>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

namespace tintra {

/// The nearest name for a colour out of a fixed list of named colours. Any thread may ask.
class ColorNames {
public:
    /// The instance of the running program, over the list that is shipped with it.
    static ColorNames& shared();

    /// Over a list of lines "HEX<TAB>NAME" in UTF-8; lines without a tab or with a code that is no
    /// colour are passed over. The file is not touched before the first question.
    explicit ColorNames(std::filesystem::path list);

    /// The name of the entry nearest in OKLab to the colour rounded to 8 bits, the first of the
    /// list among equally near ones; alpha plays no part. Without a readable list the rounded
    /// colour's `hex`.
    std::string name(const WashColor& colour);

    /// Reads the list unless that has been done (or has failed) before.
    void loadIfNeeded();

private:
    std::optional<std::string_view> cached(const WashColor& key);

    std::filesystem::path list_;
    std::mutex lock_; ///< over the cache and the loading
    bool loaded_ = false;
    NameList names_; ///< never changes once `loaded_`, so that it is scanned without the lock
    std::unordered_map<WashColor, std::string_view> cache_; ///< by rounded colour, alpha 1
};

} // namespace tintra

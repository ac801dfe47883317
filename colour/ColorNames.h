#pragma once

#include "colour/WashColor.h"

#include <filesystem>
#include <mutex>
#include <string>
#include <unordered_map>
#include <vector>

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
    /// The entries in the list's order, a component an array, so that a scan streams through them.
    struct Entries {
        std::vector<double> L, a, b;
        std::vector<std::string> names;
    };

    std::filesystem::path list_;
    std::mutex lock_;
    bool loaded_ = false;
    Entries entries_; ///< never changes once `loaded_`
    std::unordered_map<WashColor, std::string> cache_;
};

} // namespace tintra

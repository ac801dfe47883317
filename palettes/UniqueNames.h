#pragma once

#include <string>
#include <unordered_map>
#include <unordered_set>

namespace tintra {

/// Makes the names of one list different from each other, in order.
class UniqueNames {
public:
    /// `separator` stands between a name and its number: ' ' gives "Red 2".
    explicit UniqueNames(char separator) : separator_(separator) {}

    /// The name itself when no name of the list is equal so far, else with the first number from 2
    /// upward that makes it new. The time for a whole list is linear in its length.
    std::string add(const std::string& name);

private:
    char separator_;
    std::unordered_set<std::string> taken_;
    /// The number tried last for a name that came again; trying goes on from there.
    std::unordered_map<std::string, int> lastNumber_;
};

} // namespace tintra

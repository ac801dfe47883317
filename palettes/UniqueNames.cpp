#include "palettes/UniqueNames.h"

#include "platform/Number.h"

namespace tintra {

std::string UniqueNames::add(const std::string& name) {
    if (taken_.insert(name).second) return name;
    int& number = lastNumber_.try_emplace(name, 1).first->second;
    for (;;) {
        auto numbered = name + separator_;
        appendInteger(numbered, ++number);
        if (taken_.insert(numbered).second) return numbered;
    }
}

} // namespace tintra

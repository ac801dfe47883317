#include "platform/pictures/PictureModule.h"

#include "platform/Locations.h"

#include <dlfcn.h>
#include <fmt/format.h>

#include <map>
#include <mutex>

namespace tintra {

namespace {

using Module = std::variant<OpenPictureDecoder*, std::string>;

std::string lastProblem() {
    const char* text = dlerror(); // NOLINT(concurrency-mt-unsafe): glibc keeps one a thread
    return text == nullptr ? "the module cannot be loaded" : text;
}

Module load(std::string_view name) {
    const auto file = shippedModule(fmt::format("libtintra-{}.so", name));
    void* const library = dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (library == nullptr) return lastProblem();
    void* const entry = dlsym(library, kPictureModuleEntry);
    if (entry == nullptr) return lastProblem();
    return reinterpret_cast<OpenPictureDecoder*>(entry);
}

} // namespace

Module pictureModule(std::string_view name) {
    static std::mutex mutex;
    static std::map<std::string, OpenPictureDecoder*, std::less<>> loaded;
    const std::scoped_lock lock(mutex);
    if (const auto found = loaded.find(name); found != loaded.end()) return found->second;
    auto module = load(name);
    if (auto* const* entry = std::get_if<OpenPictureDecoder*>(&module))
        loaded.emplace(name, *entry);
    return module;
}

} // namespace tintra

#include "platform/desktop/heif/HeifFile.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

namespace tintra {

namespace {

std::int64_t fileSize(int descriptor) {
    struct stat status {};
    return ::fstat(descriptor, &status) == 0 ? status.st_size : 0;
}

/// Reads so many bytes from a place; whether they are there.
bool readAt(int descriptor, void* data, std::size_t size, std::int64_t place) {
    auto* bytes = static_cast<char*>(data);
    while (size > 0) {
        const auto count = ::pread(descriptor, bytes, size, place);
        if (count < 0 && errno == EINTR) continue;
        if (count <= 0) return false;
        bytes += count;
        size -= static_cast<std::size_t>(count);
        place += count;
    }
    return true;
}

} // namespace

const heif_reader HeifFile::kReader{
    1, [](void* file) { return static_cast<HeifFile*>(file)->position_; },
    [](void* data, std::size_t size, void* file) {
        auto& self = *static_cast<HeifFile*>(file);
        if (!readAt(self.descriptor_, data, size, self.position_)) return 1;
        self.position_ += static_cast<std::int64_t>(size);
        return 0;
    },
    [](std::int64_t position, void* file) {
        static_cast<HeifFile*>(file)->position_ = position;
        return 0;
    },
    [](std::int64_t target, void* file) {
        return target <= static_cast<HeifFile*>(file)->size_
                   ? heif_reader_grow_status_size_reached
                   : heif_reader_grow_status_size_beyond_eof;
    }};

HeifFile::HeifFile(int descriptor)
    : context_(heif_context_alloc()), descriptor_(descriptor), size_(fileSize(descriptor)) {}

HeifOwner<heif_image_handle> HeifFile::primaryImage() {
    if (heif_context_read_from_reader(context_.get(), &kReader, this, nullptr).code !=
        heif_error_Ok)
        return nullptr;
    heif_image_handle* handle = nullptr;
    heif_context_get_primary_image_handle(context_.get(), &handle);
    return HeifOwner<heif_image_handle>(handle);
}

} // namespace tintra

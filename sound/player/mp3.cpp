#include "sound/player/mp3.h"

#include <algorithm>
#include <filesystem>

#include "sound/player/samples.h"

namespace {
int Milliseconds(off_t frames) { return static_cast<int>(frames * 1000 / framesPerSecond); }
}  // namespace

std::unique_ptr<Mp3> Mp3::Open(const std::string& path) {
    std::error_code error;
    if (!std::filesystem::is_regular_file(path, error)) return nullptr;  // a pipe would keep the game waiting
    Handle handle(mpg123_new(nullptr, nullptr));
    if (!handle) return nullptr;
    mpg123_param(handle.get(), MPG123_ADD_FLAGS, MPG123_QUIET | MPG123_FORCE_STEREO, 0);
    mpg123_param(handle.get(), MPG123_FORCE_RATE, framesPerSecond, 0);
    mpg123_format_none(handle.get());
    mpg123_format(handle.get(), framesPerSecond, MPG123_STEREO, MPG123_ENC_SIGNED_16);
    if (mpg123_open(handle.get(), path.c_str()) != MPG123_OK) return nullptr;
    long rate = 0;
    int channels = 0;
    int encoding = 0;
    if (mpg123_getformat(handle.get(), &rate, &channels, &encoding) != MPG123_OK) return nullptr;
    const int length = std::max(Milliseconds(mpg123_length(handle.get())), 1);
    return std::unique_ptr<Mp3>(new Mp3(std::move(handle), length));
}

std::size_t Mp3::Read(std::span<std::int16_t> samples) {
    std::size_t written = 0;
    while (!ended_ && written < samples.size()) {
        std::size_t bytes = 0;
        const std::span<std::int16_t> rest = samples.subspan(written);
        const int result =
            mpg123_read(handle_.get(), reinterpret_cast<unsigned char*>(rest.data()), rest.size_bytes(), &bytes);
        written += bytes / sizeof(std::int16_t);
        ended_ = result != MPG123_OK && result != MPG123_NEW_FORMAT;
    }
    return written;
}

void Mp3::Rewind() { ended_ = mpg123_seek(handle_.get(), 0, SEEK_SET) < 0; }

int Mp3::Position() const { return ended_ ? length_ : std::min(Milliseconds(mpg123_tell(handle_.get())), length_ - 1); }

#pragma once

#include <mpg123.h>

#include <cstdint>
#include <memory>
#include <span>
#include <string>

// A piece of music in a file, decoded while it plays. It comes out in the format of the mixer, whatever its own.
class Mp3 {
public:
    // Null when there is no such file or no music in it. Takes no longer for a long piece than for a short one.
    static std::unique_ptr<Mp3> Open(const std::string& path);

    // Decodes what comes next. Returns how many samples it has written, fewer than asked for only at the end.
    std::size_t Read(std::span<std::int16_t> samples);
    void Rewind();

    // In ms. They are equal at the end and only there, also in a file that ends sooner than it says.
    int Position() const;
    int Length() const { return length_; }

private:
    struct Delete {
        void operator()(mpg123_handle* handle) const { mpg123_delete(handle); }
    };
    using Handle = std::unique_ptr<mpg123_handle, Delete>;

    Mp3(Handle handle, int length) : handle_(std::move(handle)), length_(length) {}

    Handle handle_;
    int length_;
    bool ended_ = false;
};

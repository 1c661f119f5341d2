#include "tools/xttml/output/output_file.h"

#include "tools/xttml/document/unusable_file.h"

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <system_error>
#include <unistd.h>

namespace xttml {

namespace {

namespace fs = std::filesystem;

[[noreturn]] void Fail(const std::string& path) {
    throw std::system_error(errno, std::generic_category(), path);
}

/// @param mode as of fopen()
void WriteInPlace(const std::string& path, const char* mode, std::string_view bytes,
                  const std::string& nameInMessages) {
    std::FILE* const file = std::fopen(path.c_str(), mode);
    if (!file)
        Fail(nameInMessages);
    const bool written = std::fwrite(bytes.data(), 1, bytes.size(), file) == bytes.size();
    if (std::fclose(file) != 0 || !written)
        Fail(nameInMessages);
}

/// A file beside another that is removed unless it has taken its place.
class TemporaryFile {
public:
    explicit TemporaryFile(const fs::path& target)
        : target_(target), path_(target.string() + '.' + std::to_string(::getpid()) + ".tmp") {}
    ~TemporaryFile() {
        std::error_code ignored;
        fs::remove(path_, ignored);
    }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    std::string Path() const { return path_.string(); }
    /// Whether it could take the other's place; errno tells why not.
    bool TakeOver() const {
        std::error_code ignored;
        const fs::file_status replaced = fs::status(target_, ignored);
        if (fs::exists(replaced))
            fs::permissions(path_, replaced.permissions(), ignored);
        return std::rename(path_.c_str(), target_.c_str()) == 0;
    }

private:
    fs::path target_;
    fs::path path_;
};

/// Whether the path leads to what cannot be replaced by a file: a device or a pipe.
bool IsSpecial(const std::string& path) {
    std::error_code ignored;
    const fs::file_status status = fs::status(path, ignored);
    return fs::exists(status) && !fs::is_regular_file(status) && !fs::is_directory(status);
}

/// The file itself where the path is a link to one.
fs::path TargetOf(const std::string& path) {
    std::error_code ignored;
    return fs::is_symlink(path, ignored) ? fs::weakly_canonical(path) : fs::path(path);
}

} // namespace

void RequireRoomFor(const std::string& path, ExistingFile existing) {
    std::error_code ignored;
    if (existing == ExistingFile::KEPT && path != standardOutputPath && fs::exists(path, ignored) &&
        !IsSpecial(path))
        throw UnusableFile(path, "exists; --force replaces it");
}

void WriteFile(const std::string& path, std::string_view bytes, ExistingFile existing) {
    if (IsSpecial(path)) {
        WriteInPlace(path, "wb", bytes, path);
        return;
    }
    RequireRoomFor(path, existing);
    const TemporaryFile temporary(TargetOf(path));
    WriteInPlace(temporary.Path(), "wbx", bytes, path);
    if (!temporary.TakeOver())
        Fail(path);
}

void WriteTo(const std::string& path, std::string_view bytes, ExistingFile existing, StandardOutput& output) {
    if (path == standardOutputPath)
        output.Write(bytes);
    else
        WriteFile(path, bytes, existing);
}

} // namespace xttml

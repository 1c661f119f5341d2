#include "tools/xttml/document.h"

#include "tools/xttml/text_encoding.h"

#include <cerrno>
#include <cstring>
#include <limits>
#include <string_view>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace xttml {

namespace {

constexpr const char* noRootElement = "no tt root element";

/// The message of an exception of the library, without the path that it may begin with.
std::string Reason(const tessera::Exception& exception, const std::string& path = "") {
    const std::string& message = exception.message();
    const std::string prefix = path + ": ";
    const bool namesPath = !path.empty() && message.compare(0, prefix.size(), prefix) == 0;
    return Utf8FromLatin1(namesPath ? message.substr(prefix.size()) : message);
}

// The XML library would take "http://..." for an address; a path that begins with / or ./ never is one.
std::string LocalPath(const std::string& file) {
    return file.front() == '/' ? file : "./" + file;
}

void CheckReadable(const std::string& file) {
    struct stat status = {};
    if (::stat(file.c_str(), &status) != 0 || ::access(file.c_str(), R_OK) != 0)
        throw UnusableDocument(std::strerror(errno));
    if (S_ISDIR(status.st_mode))
        throw UnusableDocument(std::strerror(EISDIR));
}

std::string ReadStandardInput() {
    std::string content;
    char buffer[1U << 16U];
    for (;;) {
        const ssize_t count = ::read(STDIN_FILENO, buffer, sizeof buffer);
        if (count == 0)
            return content;
        if (count > 0)
            content.append(buffer, static_cast<std::size_t>(count));
        else if (errno != EINTR)
            throw UnusableDocument(std::strerror(errno));
        if (content.size() > std::numeric_limits<std::uint32_t>::max())
            throw UnusableDocument("larger than 4 GiB");
    }
}

/// A load from memory tells its reason only in the line that it writes.
std::string ReasonInLines(std::string_view lines) {
    while (!lines.empty() && lines.back() == '\n')
        lines.remove_suffix(1);
    return lines == "load from file failed" ? noRootElement : Utf8FromLatin1(lines);
}

} // namespace

Document::XmlLibrary::~XmlLibrary() {
    for (; initialisations > 0; --initialisations)
        x_ttml_uninit_xerces();
}

void Document::ParserDeleter::operator()(x_ttml_handle parser) const {
    x_ttml_destory_doc(parser);
    x_ttml_delete_parser(parser);
}

Document::Document(const std::string& file, ImageBlock images, LibraryOutput& libraryOutput)
    : images_(std::move(images)) {
    x_ttml_handle parser = nullptr;
    x_ttml_create_new_parser(&parser);
    parser_.reset(parser);
    x_ttml_set_document_buffer_info(Handle(), images_.Bytes().data(),
                                    static_cast<std::int32_t>(images_.Bytes().size()));
    if (file == "-")
        LoadStandardInput(libraryOutput);
    else
        LoadFile(file);
}

void Document::LoadFile(const std::string& file) {
    CheckReadable(file);
    const std::string path = LocalPath(file);
    ++xmlLibrary_.initialisations;
    try {
        if (x_ttml_load_subtitle_from_file(Handle(), path.c_str()) != X_TTML_OK)
            throw UnusableDocument(noRootElement);
    } catch (const tessera::Exception& exception) {
        throw UnusableDocument(Reason(exception, path));
    }
}

void Document::LoadStandardInput(LibraryOutput& libraryOutput) {
    const std::string content = ReadStandardInput();
    int status = X_TTML_OK;
    const std::string lines = libraryOutput.Captured([&] {
        status = x_ttml_load_subtitle_from_data(Handle(), content.data(),
                                                static_cast<std::uint32_t>(content.size()));
    });
    if (status != X_TTML_OK)
        throw UnusableDocument(ReasonInLines(lines));
}

void Document::Generate(std::int32_t offset) {
    const auto generate = images_.Empty() ? x_ttml_generate_text_display_item_sequence
                                          : x_ttml_generate_image_display_item_sequence;
    try {
        generate(Handle(), offset);
    } catch (const tessera::Exception& exception) {
        throw UnusableDocument(Reason(exception));
    }
}

} // namespace xttml

// A document that is saved and loaded again gives the same display sequence.
#include "tests/parser/loaded_parser.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace {

namespace fs = std::filesystem;

std::vector<fs::path> DocumentsBelow(const fs::path& folder) {
    std::vector<fs::path> documents;
    if (!fs::is_directory(folder))
        return documents;
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
        const std::string strExtension = entry.path().extension().string();
        if (strExtension == ".ttml" || strExtension == ".xml")
            documents.push_back(entry.path());
    }
    return documents;
}

std::string strContentOf(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

struct Form {
    const char* encoding;
    bool fgBigEndian;
    bool fgMark;
};

constexpr Form forms[] = {
    {"UTF-8", false, false},   {"UTF-8", false, true},     {"UTF-16", false, true},
    {"UTF-16LE", false, true}, {"UTF-16LE", false, false}, {"UTF-16BE", true, false},
    {"UTF-16BE", true, true},
};

class SavedDocument : public LoadedParser {
protected:
    /// The items of a document, a line each; what generating raises is part of it.
    std::string strItemsOf(const void* pData, std::size_t uSize) {
        TtmlParser fresh;
        std::string strItems;
        CapturedOutput([&] {
            if (!fresh.fgLoadDocument(pData, static_cast<unsigned int>(uSize)))
                strItems += "no tt\n";
            try {
                fresh.vGenerateTextDisplaySequence(0);
            } catch (const tessera::Exception& exception) {
                strItems += exception.message() + "\n";
            }
            fresh.vCloseDocument();
        });
        for (const DisplayItem* pItem : fresh.vecGetDisplaySequence())
            strItems += Describe(*pItem) + "\n";
        return strItems;
    }
    /// How many documents a folder holds; compares each in every form.
    std::size_t uCompareAll(const fs::path& folder) {
        const std::vector<fs::path> documents = DocumentsBelow(folder);
        for (const fs::path& path : documents) {
            SCOPED_TRACE(path.string());
            vCompare(strContentOf(path));
        }
        return documents.size();
    }
    void vCompare(const std::string& strText) {
        const std::string strOriginal = strItemsOf(strText.data(), strText.size());
        auto document = ttaf1_dfxp::tt::Cttaf1_dfxp::LoadFromString(strText);
        for (const Form& form : forms) {
            const std::vector<unsigned char> vecSaved =
                document.SaveToBinary(false, form.encoding, form.fgBigEndian, form.fgMark);
            EXPECT_EQ(strItemsOf(vecSaved.data(), vecSaved.size()), strOriginal)
                << form.encoding << (form.fgMark ? " with" : " without") << " a byte order mark";
        }
        document.DestroyDocument();
    }
};

TEST_F(SavedDocument, GivesTheSameItemsForTheExamples) {
    EXPECT_GT(uCompareAll(fs::path(XTTML_SOURCE_DIR) / "examples"), 0U);
}

TEST_F(SavedDocument, GivesTheSameItemsForTheSamples) {
    const char* const pFolder = std::getenv("XTTML_SAMPLES");
    const fs::path folder =
        pFolder ? fs::path(pFolder) : fs::path(XTTML_SOURCE_DIR) / ".." / "shared" / "samples";
    if (uCompareAll(folder) == 0)
        GTEST_SKIP() << "no documents in " << folder;
}

} // namespace

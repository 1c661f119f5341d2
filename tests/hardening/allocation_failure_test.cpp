// Every allocation of a player's way through the library is made to fail in turn: each ends as the contract
// says, nothing is lost, and the parser goes on. The library's own allocations and those of the XML library
// are told apart by their ways: operator new, and the memory manager given to the XML library.
#include "api/x_ttml_items.h"
#include "tests/support/captured_output.h"
#include "tests/support/temporary_file.h"

#include <gtest/gtest.h>
#include <xercesc/framework/MemoryManager.hpp>
#include <xercesc/util/OutOfMemoryException.hpp>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/XMLUni.hpp>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <new>

#include <sys/wait.h>
#include <unistd.h>

namespace {

/// Counts allocations and makes one of them fail.
class Allocations {
public:
    /// The allocation after `count` - 1 others fails.
    void FailAt(long count) { countdown_ = count; }
    /// No more failures; tells whether there was one.
    bool EndFailing() {
        const bool hasFailed = countdown_ == 0;
        countdown_ = NEVER;
        return hasFailed;
    }
    /// How many blocks have not been freed.
    long Held() const { return held_; }
    /// How many were ever asked for.
    long Made() const { return made_; }

    void* Allocate(std::size_t size) {
        void* const block = countdown_ > 0 && --countdown_ == 0 ? nullptr : std::malloc(size);
        held_ += block ? 1 : 0;
        ++made_;
        return block;
    }
    void Free(void* block) {
        held_ -= block ? 1 : 0;
        std::free(block);
    }

private:
    static constexpr long NEVER = -1;

    long countdown_ = NEVER;
    long held_ = 0;
    long made_ = 0;
};

Allocations own;
Allocations xml;

void* AllocateForTheXmlLibrary(std::size_t size) {
    void* const block = xml.Allocate(size);
    return block ? block : throw xercesc::OutOfMemoryException();
}

class XmlMemory : public xercesc::MemoryManager {
public:
    xercesc::MemoryManager* getExceptionMemoryManager() override { return this; }
    void* allocate(XMLSize_t size) override { return AllocateForTheXmlLibrary(size); }
    void deallocate(void* block) override { xml.Free(block); }
};

XmlMemory xmlMemory;

} // namespace

// Not inlined, lest the compiler takes them for a pair that does not match.
[[gnu::noinline]] void* operator new(std::size_t size) {
    void* const block = own.Allocate(size);
    return block ? block : throw std::bad_alloc();
}
[[gnu::noinline]] void operator delete(void* block) noexcept {
    own.Free(block);
}
[[gnu::noinline]] void operator delete(void* block, std::size_t) noexcept {
    own.Free(block);
}

/// The XML library abandons what it holds when an allocation of its own fails. From the debug information of
/// g++ a function is known without its class; without debug information the one inside it may be inlined.
extern "C" XTTML_API const char* __lsan_default_suppressions();
const char* __lsan_default_suppressions() {
    return "leak:XmlMemory::allocate\nleak:AllocateForTheXmlLibrary\n";
}

namespace {

constexpr char DOCUMENT[] =
    "<tt xmlns='http://www.w3.org/ns/ttml' xmlns:tts='http://www.w3.org/ns/ttml#styling' "
    "xmlns:ttp='http://www.w3.org/ns/ttml#parameter' ttp:frameRate='25' tts:extent='1280px 720px' "
    "xmlns:smpte='http://www.smpte-ra.org/schemas/2052-1/2010/smpte-tt' xml:lang='a-language-of-its-own'>"
    "<head><styling><style xml:id='the style of a speaker' tts:color='rgba(128,128,128,255)'/></styling>"
    "<layout><region xml:id='the region at the bottom' tts:extent='80% 15%' "
    "tts:fontSize='36px'/></layout></head>"
    "<body><div begin='00:00:01.000000000' end='2s' "
    "smpte:backgroundImage='urn:dece:container:subtitleimageindex:1.png'>"
    "<p begin='00:00:01.000000000' end='2s' region='the region at the bottom' style='the style of a speaker'>"
    "the first line<br/><span tts:color='rgba(255,255,255,255)'>and <span "
    "tts:fontSize='120%'>the</span></span></p>"
    "<p begin='00:00:01.000000000' end='2s'>another<br/>paragraph</p></div></body></tt>";
constexpr char IMAGES[] = "\x89PNG the only one";

void Load(x_ttml_handle parser, const char* path) {
    if (path)
        x_ttml_load_subtitle_from_file(parser, path);
    else
        x_ttml_load_subtitle_from_data(parser, DOCUMENT, sizeof DOCUMENT - 1);
}

bool isUntrusted = false;

/// The whole way of a player, from a file or, without a path, from memory.
void Play(x_ttml_handle parser, const char* path) {
    x_ttml_set_untrusted(parser, isUntrusted);
    x_ttml_set_document_buffer_info(parser, IMAGES, sizeof IMAGES - 1);
    Load(parser, path);
    x_ttml_generate_text_display_item_sequence(parser, 0);
    x_ttml_generate_image_display_item_sequence(parser, 0);
    DisplayItem* items[X_TTML_DISPLAY_ITEM_SLOTS];
    for (const std::uint32_t time : {0U, 1500U, 3000U}) {
        x_ttml_get_display_item_by_time(parser, time);
        x_ttml_combine_same_time_item(parser);
        x_ttml_get_display_item_array_by_time(parser, items, time);
    }
}

/// Whether the player is told by an exception that memory has ended.
bool PlayWithFailure(x_ttml_handle& parser, const char* path) {
    try {
        x_ttml_create_new_parser(&parser);
        Play(parser, path);
        return false;
    } catch (const std::bad_alloc&) {
        return true;
    }
}

/// Requires of a parser that has met the end of memory that it plays once there is memory again.
void ExpectPlaysAgain(x_ttml_handle parser, const char* path) {
    x_ttml_destory_doc(parser);
    Play(parser, path);
    const auto* const item = dynamic_cast<TextItem*>(x_ttml_get_display_item_by_time(parser, 1500));
    ASSERT_TRUE(item);
    for (const Sentence* sentence : *item->pGetSentenceSeq())
        ASSERT_TRUE(sentence);
    EXPECT_EQ(item->pGetSentenceSeq()->size(), 4U);
    x_ttml_destory_doc(parser);
}

/// How many allocations were made to fail, and how often the player was told by an exception.
struct Failures {
    long count = 0;
    long thrown = 0;
};

class AllocationFailure : public testing::TestWithParam<bool> {
protected:
    AllocationFailure() {
        isUntrusted = GetParam();
        xercesc::XMLPlatformUtils::Initialize(xercesc::XMLUni::fgXercescDefaultLocale, nullptr, nullptr,
                                              &xmlMemory);
        CapturedOutput([&] {
            x_ttml_handle parser = nullptr;
            x_ttml_create_new_parser(&parser); // what is made once in a process is made now
            Play(parser, file.path.c_str());
            x_ttml_destory_doc(parser);
            x_ttml_delete_parser(parser);
        });
    }
    ~AllocationFailure() override { xercesc::XMLPlatformUtils::Terminate(); }

    /// Plays with the first, the second, ... allocation failing, until a whole day needs no more of them.
    /// Nothing is lost but what the XML library leaves to the end of the process when its own memory has
    /// ended.
    Failures FailOneByOne(Allocations& failing, const char* path) {
        Failures failures;
        for (bool hasFailed = true; hasFailed;) {
            const long allocation = ++failures.count;
            const long ownBefore = own.Held();
            const long xmlBefore = xml.Held();
            CapturedOutput([&] {
                x_ttml_handle parser = &failing; // no parser
                failing.FailAt(allocation);
                failures.thrown += PlayWithFailure(parser, path) ? 1 : 0;
                hasFailed = failing.EndFailing();
                ASSERT_NE(parser, &failing);
                if (parser)
                    ExpectPlaysAgain(parser, path);
                x_ttml_delete_parser(parser);
            });
            EXPECT_EQ(own.Held(), ownBefore) << "allocation " << allocation;
            EXPECT_TRUE(xml.Held() == xmlBefore || &failing == &xml) << "allocation " << allocation;
        }
        return failures;
    }

    const TemporaryFile file{DOCUMENT};
};

INSTANTIATE_TEST_SUITE_P(TrustedAndUntrusted, AllocationFailure, testing::Bool());

TEST_P(AllocationFailure, OfTheLibraryLosesNothing) {
    for (const char* path : {static_cast<const char*>(nullptr), file.path.c_str()})
        EXPECT_GT(FailOneByOne(own, path).thrown, 50);
}

TEST_P(AllocationFailure, OfTheXmlLibraryLosesNothingOfOurs) {
    for (const char* path : {static_cast<const char*>(nullptr), file.path.c_str()}) {
        const Failures failures = FailOneByOne(xml, path);
        EXPECT_GT(path ? failures.thrown : failures.count, 5);
        EXPECT_TRUE(path || failures.thrown == 0) << "from memory there is a status";
    }
}

/// Keeps the last line that the library writes.
void KeepLine(void* context, const char* line, std::size_t length) {
    static_cast<std::string*>(context)->assign(line, length);
}

TEST_P(AllocationFailure, EndsALoadFromMemoryWithALineAndAStatus) {
    std::string line(99, ' '); // no line of a load needs more room
    x_ttml_set_line_function(KeepLine, &line);
    long failing = 0; // of the XML library's, which are made in every release
    for (bool hasFailed = true; hasFailed;) {
        x_ttml_handle parser = nullptr;
        x_ttml_create_new_parser(&parser);
        x_ttml_set_untrusted(parser, isUntrusted);
        xml.FailAt(++failing);
        const int status = x_ttml_load_subtitle_from_data(parser, DOCUMENT, sizeof DOCUMENT - 1);
        hasFailed = xml.EndFailing();
        EXPECT_EQ(line, hasFailed ? "Unknown Exception Occured!" : "load from file ok");
        EXPECT_EQ(status, hasFailed ? X_TTML_UNUSABLE : X_TTML_OK);
        x_ttml_destory_doc(parser);
        x_ttml_delete_parser(parser);
    }
    EXPECT_GT(failing, 5);
    x_ttml_set_line_function(nullptr, nullptr);
}

TEST_P(AllocationFailure, HasNothingToFailInAQueryByTime) {
    x_ttml_handle parser = nullptr;
    CapturedOutput([&] {
        x_ttml_create_new_parser(&parser);
        Play(parser, nullptr);
    });
    long made = 0;
    EXPECT_EQ(CapturedOutput([&] {
                  made -= own.Made() + xml.Made();
                  DisplayItem* items[X_TTML_DISPLAY_ITEM_SLOTS];
                  for (const std::int32_t time : {0, 1500, 3000}) {
                      x_ttml_get_display_item_by_time(parser, static_cast<std::uint32_t>(time));
                      x_ttml_get_display_item_array_by_time(parser, items, static_cast<std::uint32_t>(time));
                      x_ttml_get_items_on_screen(parser, items, X_TTML_DISPLAY_ITEM_SLOTS, time);
                      x_ttml_get_next_change(parser, time);
                  }
                  made += own.Made() + xml.Made();
              }),
              "");
    EXPECT_EQ(made, 0);
    CapturedOutput([&] {
        x_ttml_destory_doc(parser);
        x_ttml_delete_parser(parser);
    });
}

constexpr int ENDED_BY_THE_XML_LIBRARY = 255;
constexpr int INITIALISED = 1;

/// What becomes of a process whose first initialisation meets a failing allocation.
int InitialiseWithFailure(long failing) {
    own.FailAt(failing);
    try {
        x_ttml_init_xerces();
        own.EndFailing();
        return INITIALISED;
    } catch (const std::bad_alloc&) {
        own.EndFailing();
    }
    x_ttml_handle parser = nullptr;
    x_ttml_create_new_parser(&parser);
    const int status = x_ttml_load_subtitle_from_data(parser, DOCUMENT, sizeof DOCUMENT - 1);
    x_ttml_delete_parser(parser);
    x_ttml_uninit_xerces();
    EXPECT_THROW(x_ttml_init_xerces(), std::bad_alloc);
    return status == X_TTML_UNUSABLE && !testing::Test::HasFailure() ? 0 : 2;
}

// What the XML library holds is lost to such a process.
TEST(AllocationFailureOfTheFirstInitialisation, LeavesAProcessThatGoesOn) {
    std::map<int, int> endings;
    for (long failing = 1; endings.count(INITIALISED) == 0; failing += failing < 200 ? 1 : 50) {
        const pid_t child = fork();
        if (child == 0)
            _exit(std::freopen("/dev/null", "w", stdout) ? InitialiseWithFailure(failing) : 2);
        int status = 0;
        ASSERT_EQ(waitpid(child, &status, 0), child);
        ASSERT_TRUE(WIFEXITED(status)) << "allocation " << failing << ": signal " << WTERMSIG(status);
        ++endings[WEXITSTATUS(status)];
    }
    EXPECT_GT(endings[0], 50);
    endings.erase(0);
    endings.erase(ENDED_BY_THE_XML_LIBRARY);
    EXPECT_EQ(endings, (std::map<int, int>{{INITIALISED, 1}}));
}

} // namespace

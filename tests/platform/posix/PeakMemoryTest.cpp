#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include "ocore/Compress/CompressedBuffer.h"
#include "ocore/Compress/StateData.h"
#include "ocore/Resources/ByteBuffer.h"
#include "support/LibraryTesting.h"
#include "zent27.h"

namespace zent::test {
namespace {

/// Imports a ticket in a process of its own; the most memory, in MiB, that it had, or 0 if it
/// didn't come to its end. What this process has itself is part of it.
long peakOfImport(const std::string& ticket, std::uint32_t format) {
    const pid_t child = fork();
    if (child == 0) {
        ZentSessionType session = nullptr;
        ZentBool out = 0;
        fnOpenSession(ZENT_INTERFACE_VERSION, 1, 1, ZENT_INSTRUCTIONS_XML, 1, nullptr, 0, &session);
        fnImportJobTicket(session, ticket.data(), static_cast<std::uint32_t>(ticket.size()), format,
                          ZENT_APPLY_SILENT_KEEP, nullptr, nullptr, &out, &out);
        _exit(0);
    }
    int status = 0;
    rusage usage{};
    const bool isEnded = wait4(child, &status, 0, &usage) == child && WIFEXITED(status);
    return isEnded ? usage.ru_maxrss / 1024 : 0;
}

std::string repeated(const std::string& text, std::size_t count) {
    std::string result;
    for (std::size_t i = 0; i < count; ++i) {
        result += text;
    }
    return result;
}

/// A ticket whose content is little but references to an entity.
std::string bombOf(const std::string& piece, std::size_t references, const std::string& before = {},
                   const std::string& after = {}) {
    return "<!DOCTYPE ordo SYSTEM 'ordo-v02025.dtd' [<!ENTITY e \"" +
           repeated(piece, 65'000 / piece.size()) + "\">]><ordo><job-template-attributes>" +
           before + repeated("&e;", references) + after + "</job-template-attributes></ordo>";
}

std::string blobOf(const std::string& content) {
    ByteBuffer structure = StateData().getBytes();
    structure.append("<sordo>", 7);
    structure.append(content.data(), content.size());
    structure.append("</sordo>", 8);
    CompressedBuffer block(CompressedBuffer::defaultLevel);
    block.store(structure);
    const ByteBuffer& image = block.getImage();
    return std::string("\x08\0\0\0\x01\0\x08\x03", 8) +
           std::string(static_cast<const char*>(static_cast<const void*>(image.data())),
                       image.size());
}

class PeakMemoryTest : public testing::Test {
protected:
    void SetUp() override {
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
        GTEST_SKIP() << "a sanitizer has memory of its own";
#endif
    }
};

TEST_F(PeakMemoryTest, OfADocumentGoesByItsSize) {
    const std::string overrides = "<page-overrides syntax='1setOf'>";
    const Rows<const char*, std::string> rows{
        {"instructions", bombOf("<?x?>", 1'000)},
        {"comments", bombOf("<!---->", 1'000)},
        {"lists", bombOf("<copies syntax='1setOf'> </copies>", 1'000)},
        {"overrides",
         bombOf("<value syntax='collection'> </value>", 30, overrides, "</page-overrides>")},
        {"text", bombOf("x", 258, "<job-name syntax='name'>", "</job-name>")},
        {"attribute", bombOf("x", 258, "<job-name syntax='", "'>x</job-name>")},
    };
    for (const auto& [name, ticket] : rows) {
        const long peak = peakOfImport(ticket, ZENT_FORMAT_XML);
        EXPECT_GT(peak, 0) << name;
        EXPECT_LE(peak, 128 + 10 * static_cast<long>(ticket.size()) / (1024 * 1024)) << name;
    }
}

TEST_F(PeakMemoryTest, OfABlobIsTheSameWhateverItExpandsTo) {
    const std::string blanks(40'000'000, ' ');
    const Rows<const char*, std::string> rows{
        {"instructions", blobOf(repeated("<?x?>" + std::string(45, ' '), 1'300'000))},
        {"text", blobOf("<f s='n'>" + std::string(66'000'000, 'x') + "</f>")},
        {"comment", blobOf("<!--" + std::string(66'000'000, 'x') + "-->")},
        {"lists", blobOf("<j s='s'>" + repeated("<V s='s'> </V>", 330'000) + "</j>")},
        {"attribute", blobOf("<f s='" + std::string(8'000'000, 'x') + "'>a</f>" + blanks)},
    };
    for (const auto& [name, blob] : rows) {
        const long peak = peakOfImport(blob, ZENT_FORMAT_STATE);
        EXPECT_GT(peak, 0) << name;
        EXPECT_LE(peak, 256) << name;
    }
}

} // namespace
} // namespace zent::test

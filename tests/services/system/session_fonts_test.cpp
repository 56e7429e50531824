#include "services/system/session_fonts.h"

#include "core/document/project_document.h"
#include "services/system/service_slot.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <QFontDatabase>
#include <QStringList>

#include <vector>

namespace tavmoor {

namespace {

namespace fs = std::filesystem;

class RecordingFonts final : public SessionFonts {
public:
    bool Add(const fs::path& file) override {
        calls.push_back("+" + file.filename().string());
        return false;
    }
    bool Remove(const fs::path& file) override {
        calls.push_back("-" + file.filename().string());
        return false;
    }
    std::vector<std::string> calls;

private:
    ScopedService<SessionFonts> slot_{*this};
};

void ReplaceAll(std::string& bytes, const std::string& from, const std::string& to) {
    for (auto at = bytes.find(from); at != std::string::npos; at = bytes.find(from, at)) {
        bytes.replace(at, from.size(), to);
    }
}

/// An installed font under a family name that no system has; "" where the font is not installed.
std::string FontOfOwnFamily() {
    const fs::path installed = "/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf";
    std::ifstream file(installed, std::ios::binary);
    std::string bytes{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    ReplaceAll(bytes, "DejaVu", "Dzhavu");
    using namespace std::string_literals;
    ReplaceAll(bytes, "\0D\0e\0j\0a\0V\0u"s, "\0D\0z\0h\0a\0v\0u"s);
    return bytes;
}

bool IsUsable() {
    return QFontDatabase::families().contains(QStringLiteral("Dzhavu Sans"));
}

} // namespace

TEST(SessionFonts, OfAProjectEndAtTheFirstGap) {
    RecordingFonts fonts;
    ProjectDocument document;
    document.Fontovi[0] = R"(Z:\fonts\a.ttf)";
    document.Fontovi[1] = R"(\\server\b.ttf)"; // no path of every system
    document.Fontovi[2] = R"(Z:\fonts\c.ttf)";
    document.Fontovi[4] = R"(Z:\fonts\e.ttf)";
    AddSessionFontsIgnoringErrors(document.Fontovi);
    RemoveSessionFontsIgnoringErrors(document.Fontovi);
    std::erase_if(fonts.calls, [](const std::string& call) { return call.ends_with("b.ttf"); });
    EXPECT_EQ(fonts.calls, (std::vector<std::string>{"+a.ttf", "+c.ttf", "-a.ttf", "-c.ttf"}));
}

TEST(SessionFonts, AreUsableUntilTheyWereRemovedAsOftenAsAdded) {
    const test::TemporaryFolder folder;
    const std::string bytes = FontOfOwnFamily();
    if (bytes.empty()) {
        GTEST_SKIP() << "the font is not installed";
    }
    const std::vector<std::string> fonts{folder.Write("none.ttf", "no font"),
                                         folder.Write("own.ttf", bytes)};
    RemoveSessionFontsIgnoringErrors(fonts);
    EXPECT_FALSE(IsUsable());
    AddSessionFontsIgnoringErrors(fonts);
    AddSessionFontsIgnoringErrors(fonts);
    EXPECT_TRUE(IsUsable());
    RemoveSessionFontsIgnoringErrors(fonts);
    EXPECT_TRUE(IsUsable());
    RemoveSessionFontsIgnoringErrors(fonts);
    EXPECT_FALSE(IsUsable());
}

} // namespace tavmoor

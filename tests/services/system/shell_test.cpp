#include "services/system/shell_platform.h"

#include "core/text/maker.h"
#include "services/values/qt_text.h"
#include "support/recording_shell.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <QDeadlineTimer>
#include <QThread>

#include <vector>

namespace tavmoor {

namespace {

#ifndef _WIN32
/// A search path with one folder, in which the test puts its programs.
class OwnSearchPath {
public:
    OwnSearchPath() : before_(qgetenv("PATH")) { qputenv("PATH", folder.Native("bin").c_str()); }
    OwnSearchPath(const OwnSearchPath&) = delete;
    OwnSearchPath& operator=(const OwnSearchPath&) = delete;
    ~OwnSearchPath() { qputenv("PATH", before_); }

    /// A program that writes its folder and its arguments into the file "told", a line each.
    void AddTeller(const std::string& name, const std::string& first = "") const {
        const std::string told = folder.Native("told").string();
        AddScript(name, first + "{ pwd; for a in \"$@\"; do echo \"$a\"; done; } >'" + told +
                            ".part'\n/bin/mv '" + told + ".part' '" + told + "'\n");
    }
    void AddScript(const std::string& name, const std::string& commands) const {
        folder.Write(name, "#!/bin/sh\n" + commands);
        std::filesystem::permissions(folder.Native(name), std::filesystem::perms::owner_all);
    }
    /// What the program told; "" when it told nothing in time.
    [[nodiscard]] std::string Told() const {
        const QDeadlineTimer limit(5000);
        while (!std::filesystem::exists(folder.Native("told")) && !limit.hasExpired()) {
            QThread::msleep(5);
        }
        std::string told = folder.Read("told");
        std::filesystem::remove(folder.Native("told"));
        return told;
    }

    const test::TemporaryFolder folder;

private:
    QByteArray before_;
};
#endif

} // namespace

TEST(Shell, OpensOnlyWebAndMailAddressesAndEncodesThem) {
    test::RecordingShell shell;
    EXPECT_TRUE(OpenWebPage(UpdateAddress).ok);
    EXPECT_TRUE(OpenWebPage("www.tavmoor.example/a b").ok);
    EXPECT_TRUE(WriteMail(MakerMailAddress, MakerMailSubject).ok);
    EXPECT_TRUE(WriteMail("a&b?c@x.example", "\xE9t\xE9 & more").ok);
    for (const char* address : {"", "file:///etc/passwd", "/etc/passwd", "javascript:alert(1)"}) {
        EXPECT_FALSE(OpenWebPage(address).ok) << address;
        EXPECT_NE(OpenWebPage(address).message.find(address), std::string::npos);
    }
    EXPECT_FALSE(WriteMail("nobody", "x").ok);
    EXPECT_EQ(shell.calls,
              (std::vector<std::string>{
                  "address https://www.tavmoor.example/tavmoor-vercheck.php?ver=790",
                  "address http://www.tavmoor.example/a%20b",
                  "address mailto:contact@tavmoor.example?subject=Tavmoor",
                  "address mailto:a%26b%3Fc@x.example?subject=%C3%A9t%C3%A9%20%26%20more"}));
}

TEST(Shell, ShowsTheStartPageWhereNothingShowsTheHelpFile) {
    const test::TemporaryFolder folder;
    const std::string page = "document " + folder.Document() + R"(\help\index.html)";
    const std::string chm = "help " + folder.Document() + R"(\help.chm)";
    test::RecordingShell shell;
    OpenHelp(folder.Document());
    folder.Write("help.chm", "x");
    OpenHelp(folder.Document() + "\\");
    shell.showsHelp = false;
    OpenHelp(folder.Document());
    EXPECT_EQ(shell.calls, (std::vector<std::string>{page, chm, chm, page}));
}

#ifndef _WIN32
TEST(Shell, StartsProgramsInTheirFolderAndWindowsProgramsThroughWine) {
    const OwnSearchPath path;
    const std::string here = path.folder.Native("disc").string();
    path.AddTeller("disc/plain");
    EXPECT_TRUE(PlatformShell().StartProgram(path.folder.Document("disc/plain"), {"a b", "c"}).ok);
    EXPECT_EQ(path.Told(), here + "\na b\nc\n");

    path.AddTeller("bin/wine");
    path.folder.Write("disc/My Autorun.EXE", "MZ");
    EXPECT_TRUE(PlatformShell().StartProgram(path.folder.Document("disc/my autorun.exe"), {}).ok);
    EXPECT_EQ(path.Told(), here + "\n" + here + "/My Autorun.EXE\n");

    const auto missing = PlatformShell().StartProgram(path.folder.Document("disc/no.exe"), {});
    EXPECT_FALSE(missing.ok);
    EXPECT_EQ(missing.message, "File not found: " + path.folder.Document("disc/no.exe"));
    const auto text = PlatformShell().StartProgram(path.folder.Write("disc/text", "x"), {});
    EXPECT_FALSE(text.ok);
    EXPECT_NE(text.message.find("could not be started"), std::string::npos) << text.message;
}

TEST(Shell, FindsAViewerOfHelpFilesOrSaysThatThereIsNone) {
    const OwnSearchPath path;
    const std::string chm = path.folder.Write("help.chm", "x");
    EXPECT_FALSE(PlatformShell().OpenHelpFile(chm).ok);
    path.AddScript("bin/xdg-mime", "exit 4\n");
    path.AddTeller("bin/kchmviewer");
    EXPECT_TRUE(PlatformShell().OpenHelpFile(chm).ok);
    EXPECT_NE(path.Told().find("/help.chm\n"), std::string::npos);

    const QDeadlineTimer limit(4000);
    path.AddScript("bin/xdg-mime", "exec /bin/sleep 30\n");
    EXPECT_TRUE(PlatformShell().OpenHelpFile(chm).ok);
    EXPECT_FALSE(limit.hasExpired());
}

TEST(Shell, SaysWhenNothingCanOpenAnAddressOrADocument) {
    const test::TemporaryFolder folder;
    EXPECT_FALSE(OpenWebPage(MakerWebPage).ok);
    EXPECT_NE(OpenWebPage(MakerWebPage).message.find("no program"), std::string::npos);
    EXPECT_FALSE(PlatformShell().OpenDocument(folder.Write("page.html", "x")).ok);
    EXPECT_EQ(PlatformShell().OpenDocument("C:\\page.html").message,
              "File not found: C:\\page.html");
}
#endif

} // namespace tavmoor

#include "menu/command_runner.h"

#include <gtest/gtest.h>

#include <set>

namespace tavmoor {

namespace {

const std::set<std::string> OnTheDisc{"D:\\disc\\pages\\index.html", "D:\\disc\\setup.exe"};

bool Exists(const std::string& path) {
    return OnTheDisc.count(path) != 0;
}

MenuCommand Command(CommandKind kind, const std::string& target,
                    const std::string& parameter = "") {
    MenuCommand command;
    command.kind = kind;
    command.target = target;
    command.parameter = parameter;
    return command;
}

/// What a command would start; "-" when it is refused.
std::string Started(CommandKind kind, const std::string& target,
                    const std::string& parameter = "") {
    const auto result = ResolveCommand(Command(kind, target, parameter), "D:\\disc", Exists);
    const auto* request = std::get_if<StartRequest>(&result);
    return request == nullptr ? "-" : request->file;
}

class FakeRunner final : public CommandRunner {
public:
    StartResult Start(const StartRequest& request, std::string& reason) override {
        started = request;
        reason = "It is locked.";
        return result;
    }

    StartResult result = StartResult::Started;
    StartRequest started;
};

} // namespace

TEST(CommandTarget, FindsFilesOnTheDisc) {
    const auto open = [](const std::string& target) {
        return Started(CommandKind::OpenFile, target);
    };
    EXPECT_EQ(open("docs\\a b.pdf"), "D:\\disc\\docs\\a b.pdf");
    EXPECT_EQ(open("\\docs\\a.pdf"), "D:\\disc\\docs\\a.pdf");
    EXPECT_EQ(open("docs/a.pdf"), "D:\\disc\\docs\\a.pdf");
    EXPECT_EQ(open(" \"a.pdf\" "), "D:\\disc\\a.pdf");
    EXPECT_EQ(open("C:\\a.pdf"), "C:\\a.pdf");
    EXPECT_EQ(open("\\\\server\\share\\a.pdf"), "\\\\server\\share\\a.pdf");
    EXPECT_EQ(open("\\"), "D:\\disc\\");
    EXPECT_EQ(open("  "), "-");
}

TEST(CommandTarget, RunsProgramsInTheirOwnFolder) {
    const auto run = [](const std::string& target, std::string_view disc) {
        return std::get<StartRequest>(
            ResolveCommand(Command(CommandKind::RunProgram, target, "/s"), disc, Exists));
    };
    const StartRequest tool = run("\\tools\\tool.exe", "D:\\disc");
    EXPECT_EQ(tool.folder, "D:\\disc\\tools");
    EXPECT_EQ(tool.parameters, "/s");
    // A disc's program lies in the root, whose folder needs its backslash.
    EXPECT_EQ(run("\\x.exe", "D:\\").file, "D:\\x.exe");
    EXPECT_EQ(run("\\x.exe", "D:\\").folder, "D:\\");
    EXPECT_EQ(run("setup.exe", "D:\\disc").file, "D:\\disc\\setup.exe");
    EXPECT_EQ(run("notepad.exe", "D:\\disc").file, "notepad.exe");
    EXPECT_EQ(run("\\notepad.exe", "D:\\disc").file, "D:\\disc\\notepad.exe");
}

TEST(CommandTarget, OpensOnlyPages) {
    const auto visit = [](const std::string& target) {
        return Started(CommandKind::VisitPage, target);
    };
    EXPECT_EQ(visit("www.example.com"), "http://www.example.com");
    EXPECT_EQ(visit("example.com:8080/x?a=b:c"), "http://example.com:8080/x?a=b:c");
    EXPECT_EQ(visit("localhost:8080"), "http://localhost:8080");
    EXPECT_EQ(visit("HTTPS://example.com/a b\""), "HTTPS://example.com/a%20b%22");
    EXPECT_EQ(visit("ftp://example.com"), "ftp://example.com");
    EXPECT_EQ(visit("\\pages\\index.html"), "D:\\disc\\pages\\index.html");
    for (const char* refused : {"javascript:alert(1)", "file:///C:/a.exe", "C:\\a.exe",
                                "evil.scheme://x", "mailto:a@example.com", "http://a\nb"}) {
        EXPECT_EQ(visit(refused), "-") << refused;
    }
}

TEST(CommandTarget, WritesLettersWithTheirSubject) {
    const auto mail = [](const std::string& target, const std::string& parameter) {
        return Started(CommandKind::SendMail, target, parameter);
    };
    EXPECT_EQ(mail("a@example.com", ""), "mailto:a@example.com");
    EXPECT_EQ(mail("MAILTO:a@example.com", "Čaj & more"),
              "MAILTO:a@example.com?subject=%C4%8Caj%20%26%20more");
    EXPECT_EQ(mail("a@example.com?cc=b@example.com", "Hi"),
              "mailto:a@example.com?cc=b@example.com&subject=Hi");
    EXPECT_EQ(mail("a@example.com", "Subject=Hi&body=a b"),
              "mailto:a@example.com?Subject=Hi&body=a%20b");
    EXPECT_EQ(mail("http://example.com", ""), "-");
}

TEST(CommandRunner, ClosesTheMenuOnlyAfterAStart) {
    MenuCommand command = Command(CommandKind::OpenFile, "a.txt");
    command.closes = true;
    FakeRunner runner;
    EXPECT_TRUE(RunCommand(command, "D:\\disc", Exists, runner).closesMenu);
    EXPECT_EQ(runner.started.file, "D:\\disc\\a.txt");

    runner.result = StartResult::Failed;
    const CommandOutcome failed = RunCommand(command, "D:\\disc", Exists, runner);
    EXPECT_FALSE(failed.closesMenu);
    EXPECT_EQ(failed.message, "D:\\disc\\a.txt\n\nIt is locked.");

    runner.result = StartResult::Cancelled;
    const CommandOutcome cancelled = RunCommand(command, "D:\\disc", Exists, runner);
    EXPECT_FALSE(cancelled.closesMenu);
    EXPECT_EQ(cancelled.message, "");

    command.target.clear();
    runner.result = StartResult::Started;
    EXPECT_FALSE(RunCommand(command, "D:\\disc", Exists, runner).closesMenu);
    command.kind = CommandKind::Exit;
    EXPECT_TRUE(RunCommand(command, "D:\\disc", Exists, runner).closesMenu);
}

TEST(CommandRunner, TurnsTheSoundAroundOrOff) {
    FakeRunner runner;
    const auto change = [&](const MenuCommand& command) {
        return RunCommand(command, "D:\\disc", Exists, runner).sound;
    };
    MenuCommand command = Command(CommandKind::OpenFile, "film.avi");
    EXPECT_EQ(change(command), SoundChange::None);
    command.stopsSound = true;
    EXPECT_EQ(change(command), SoundChange::Stop);
    runner.result = StartResult::Failed;
    EXPECT_EQ(change(command), SoundChange::None);
    EXPECT_EQ(change(Command(CommandKind::Sound, "")), SoundChange::Toggle);
}

} // namespace tavmoor

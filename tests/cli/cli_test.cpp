#include "support/build_project.h"
#include "support/package_bytes.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <cstdlib>
#include <sys/wait.h>

namespace tavmoor {

namespace {

namespace fs = std::filesystem;
using Names = std::set<std::string>;
using test::PackageBytes;

struct Result {
    int exit = -1;
    std::string out;
    std::string error;
};

bool Has(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
}

/// One line of this program's own, and nothing else.
bool IsOneErrorLine(const std::string& error) {
    return error.starts_with("tavmoor-cli: ") && error.find('\n') == error.size() - 1;
}

std::string Quoted(const std::string& text) {
    std::string quoted = "'";
    for (const char character : text) {
        quoted += character == '\'' ? std::string("'\\''") : std::string(1, character);
    }
    return quoted + "'";
}

/// Runs the program with a program folder that holds the real content and small programs in the
/// templates; temporary files go to a folder that has to be empty afterwards.
class CliTest : public testing::Test {
protected:
    void SetUp() override {
        for (const char* name : {"tmp", "disc", "console"}) {
            fs::create_directories(folder_.Native(name));
        }
        fs::copy(TAVMOOR_CONTENT, folder_.Native("program"), fs::copy_options::recursive);
        for (const auto& entry : fs::directory_iterator(folder_.Native("program/Templates"))) {
            std::ofstream(entry.path() / "template.tavexe", std::ios::binary) << runtime_;
        }
    }
    void TearDown() override { EXPECT_EQ(NamesIn("tmp"), Names{}); }

    Result Run(const std::vector<std::string>& arguments, const std::string& locale = "en_US") {
        std::string line = "cd " + Quoted(folder_.Native()) +
                           " && TMPDIR=" + Quoted(folder_.Native("tmp")) + " LC_ALL=" + locale +
                           " " + TAVMOOR_CLI;
        for (const std::string& argument : arguments) {
            line += " " + Quoted(argument);
        }
        const int status = std::system((line + " >console/out 2>console/error").c_str());
        return {WEXITSTATUS(status), folder_.Read("console/out"), folder_.Read("console/error")};
    }

    Result Build(const std::string& project, std::vector<std::string> more = {}) {
        std::vector<std::string> arguments{"build", project, "--program-folder", "program"};
        if (std::find(more.begin(), more.end(), "--cd-folder") == more.end()) {
            more.insert(more.end(), {"--cd-folder", "disc"});
        }
        arguments.insert(arguments.end(), more.begin(), more.end());
        return Run(arguments);
    }

    [[nodiscard]] static std::string Example(const std::string& name) {
        return "program/Examples/" + name + ".tavp";
    }
    [[nodiscard]] Names NamesIn(const std::string& name) const {
        Names names;
        for (const auto& entry : fs::directory_iterator(folder_.Native(name))) {
            names.insert(entry.path().filename().string());
        }
        return names;
    }
    /// An example with more lines in one of its sections.
    std::string Changed(const std::string& section, const std::string& lines) const {
        std::string text = folder_.Read(Example("Photo album"));
        text.insert(text.find("[" + section + "]") + section.size() + 4, lines);
        folder_.Write("changed.tavp", text);
        return "changed.tavp";
    }

    test::TemporaryFolder folder_;
    std::string runtime_ = test::ProgramOf(u"Orlenta");
};

} // namespace

TEST_F(CliTest, BuildsTheExamples) {
    const std::pair<const char*, const char*> examples[] = {{"Photo album", "photos.exe"},
                                                            {"Software sampler", "sampler.exe"},
                                                            {"Music evening", "music.exe"}};
    for (const auto& [example, program] : examples) {
        const Result result = Build(Example(example));
        EXPECT_EQ(result.exit, 0) << result.error;
        EXPECT_EQ(result.error, "");
        EXPECT_EQ(NamesIn("disc"), (Names{"Autorun.arn", "Autorun.inf", program}));
        EXPECT_EQ(folder_.Read("disc/" + std::string(program)), runtime_);
        std::size_t from = 0;
        for (const char* line :
             {"Checking files...\n", "  checking Z:\\", "\\back.jpg\n",
              "Processing package files...\n", "  packing Z:\\", "back.jpg\n", "  package 100 %\n",
              "The autorun program has been created!\n", "Built in Z:\\"}) {
            from = result.out.find(line, from);
            EXPECT_NE(from, std::string::npos) << line;
        }
    }
    EXPECT_EQ(Build(Example("Photo album"), {"--name", "other"}).exit, 0);
    EXPECT_EQ(NamesIn("disc"), (Names{"Autorun.arn", "Autorun.inf", "other.exe"}));
}

TEST_F(CliTest, ButtonRowsOfTheFileCountAsLive) {
    const std::string picture = folder_.Write("button.gif", "picture");
    const std::string project =
        Changed("Napredni sabloni", "DugmePictureFile(3)=" + picture + "\r\n");
    EXPECT_EQ(Build(project).exit, 0);
    EXPECT_TRUE(Has(Run({"package", "list", "disc/Autorun.arn"}).out, "7\tbutton.gif\n"));
    fs::remove(folder_.Native("button.gif"));
    const Result result = Build(project);
    EXPECT_EQ(result.exit, 1);
    EXPECT_TRUE(IsOneErrorLine(result.error) && Has(result.error, "button.gif")) << result.error;
}

TEST_F(CliTest, TakesAndPrintsPathsInUtf8) {
    const std::pair<const char*, const char*> folders[] = {{"de_DE.UTF-8", "caf\u00E9"},
                                                           {"hr_HR.UTF-8", "\u010Da\u0161a"}};
    for (const auto& [locale, name] : folders) {
        fs::create_directories(folder_.Native(name));
        const std::string document = folder_.Document() + "\\" + name;
        for (const std::string& path :
             {std::string(name), folder_.Native(name).string(), document}) {
            const Result result =
                Run({"build", folder_.Document("program") + "\\examples\\PHOTO ALBUM.tavp",
                     "--program-folder", "program/", "--cd-folder", path},
                    locale);
            EXPECT_EQ(result.exit, 0) << result.error;
            EXPECT_TRUE(result.out.ends_with("Built in " + document + "\n")) << result.out;
        }
        EXPECT_TRUE(NamesIn(name).contains("Autorun.arn"));
    }
    const Result result = Build(Example("Photo album"), {"--cd-folder", "\u010Da\u0161a"});
    EXPECT_EQ(result.exit, 1);
    EXPECT_TRUE(IsOneErrorLine(result.error) && Has(result.error, "\u010Da\u0161a"))
        << result.error;
}

TEST_F(CliTest, ABuildThatIsNotWholeFails) {
    struct Case {
        std::vector<std::string> arguments;
        const char* error;
    };
    folder_.Write("file", "no folder");
    const Case cases[] = {
        {{"--cd-folder", "gone"}, "\\gone does not exist! You have to select CD-ROM files folder"},
        {{"--cd-folder", "file"}, "\\file does not exist!"},
        {{"--name", "my app"}, "It is highly recomended that filename contains"},
    };
    for (const Case& wanted : cases) {
        const Result result = Build(Example("Photo album"), wanted.arguments);
        EXPECT_EQ(result.exit, 1);
        EXPECT_TRUE(IsOneErrorLine(result.error) && Has(result.error, wanted.error))
            << result.error;
    }
    EXPECT_TRUE(NamesIn("disc").empty());

    fs::remove(folder_.Native("program/Templates/Marquee/template.tavexe"));
    Result result = Build(Example("Photo album"));
    EXPECT_EQ(result.exit, 1);
    EXPECT_TRUE(Has(result.error, "Marquee\\template.tavexe is missing.")) << result.error;

    folder_.Write("program/Templates/Marquee/template.tavexe", runtime_);
    folder_.Write("disc/Autorun.inf/file", "a folder stands in the way");
    result = Build(Example("Photo album"));
    EXPECT_EQ(result.exit, 1);
    EXPECT_TRUE(Has(result.error, "Autorun.inf was not placed.")) << result.error;
    EXPECT_FALSE(Has(result.out, "Built in"));
}

TEST_F(CliTest, NeverTakesAnEmptyArgumentForAMissingOne) {
    fs::create_directory(folder_.Native("own"));
    const std::string project =
        Changed("Osnovna podesavanja", "Glavni direktorijum=" + folder_.Document("own") + "\r\n");
    EXPECT_EQ(Build(project, {"--cd-folder", ""}).exit, 1);
    EXPECT_EQ(NamesIn("own"), Names{}) << "the project's own folder was not asked for";
    const Result result = Build(project, {"--name", ""});
    EXPECT_EQ(result.exit, 1);
    EXPECT_TRUE(Has(result.error, "Filename cannot be blank!")) << result.error;
}

TEST_F(CliTest, AProjectWithoutADiscFolderIsToldSo) {
    const Result result = Run({"build", Example("Photo album"), "--program-folder", "program"});
    EXPECT_EQ(result.exit, 1);
    EXPECT_TRUE(IsOneErrorLine(result.error)) << result.error;
    EXPECT_FALSE(Has(result.error, "tavmoor-cli:  does not exist!")) << result.error;
}

TEST_F(CliTest, KeepsTheProjectWhenARunTimeErrorEndsTheBuild) {
    std::string films;
    for (int i = 1; i <= 19; ++i) {
        const std::string number = std::to_string(i);
        films += "VideoFajl" + number + "=" + folder_.Write("films/" + number, "film") + "\r\n";
    }
    const std::string project = Changed("Video", films);
    folder_.Write("changed.recovered.tavp", "of an earlier time");
    const Result result = Build(project);
    EXPECT_EQ(result.exit, 1);
    EXPECT_TRUE(result.error.starts_with("tavmoor-cli: Run-time error '9': Subscript out of range"))
        << result.error;
    EXPECT_TRUE(Has(result.error, "\\changed-2.recovered.tavp\n")) << result.error;
    EXPECT_TRUE(Has(folder_.Read("changed-2.recovered.tavp"), "VideoFajl19="));
    EXPECT_EQ(folder_.Read("changed.recovered.tavp"), "of an earlier time");
    EXPECT_EQ(NamesIn("disc"), Names{});
}

TEST_F(CliTest, ResavesWithoutAChange) {
    const std::string project = Changed("Napredni sabloni", "DugmeX(3)=75\r\n");
    for (const std::string& from :
         {std::string("Music evening"), std::string("Software sampler")}) {
        EXPECT_EQ(Run({"resave", Example(from), "1.tavp", "--program-folder", "program"}).exit, 0);
        EXPECT_EQ(Run({"resave", "1.tavp", "2.tavp"}).exit, 0);
        EXPECT_EQ(folder_.Read("2.tavp"), folder_.Read("1.tavp"));
        EXPECT_GT(folder_.Read("1.tavp").size(), folder_.Read(Example(from)).size());
    }
    EXPECT_EQ(Run({"resave", project, "live.tavp"}).exit, 0);
    EXPECT_EQ(Run({"resave", project, "read.tavp", "--as-read"}).exit, 0);
    EXPECT_TRUE(Has(folder_.Read("live.tavp"), "\r\nDugmeX(3)=75\r\n"));
    EXPECT_FALSE(Has(folder_.Read("read.tavp"), "DugmeX"));
    const Result result = Run({"resave", project, "gone/out.tavp"});
    EXPECT_EQ(result.exit, 1);
    EXPECT_TRUE(IsOneErrorLine(result.error)) << result.error;
}

TEST_F(CliTest, ShowsWhatAProjectSays) {
    const std::string project = Changed("Osnovni podaci", "Tasknaslov=caf\xE9"
                                                          "Chr$(13)Chr$(10)two\r\n"
                                                          "GlavninaslovItalic=1\r\n");
    const auto json = nlohmann::json::parse(Run({"show", project, "--json"}).out);
    EXPECT_EQ(json["Osnovni podaci"]["Tasknaslov"], "caf\u00E9\r\ntwo");
    EXPECT_EQ(json["Osnovna podesavanja"]["Boja prozora"], 4662301);
    EXPECT_EQ(json["Uvod"]["Prikazi"], true);
    EXPECT_FALSE(json["Osnovni podaci"].contains("Ikona"));
    const Result text = Run({"show", project});
    EXPECT_TRUE(Has(text.out, "[Osnovni podaci]\n")) << text.out;
    EXPECT_TRUE(Has(text.out, "\nTasknaslov=caf\u00E9Chr$(13)Chr$(10)two\n")) << text.out;
    EXPECT_FALSE(Has(text.out, "Ikona="));

    EXPECT_EQ(Build(project).exit, 0);
    EXPECT_EQ(Run({"package", "extract", "disc/Autorun.arn", "out"}).exit, 0);
    EXPECT_EQ(Run({"config", project, "alone.cfg", "--program-folder", "program"}).exit, 0);
    EXPECT_EQ(folder_.Read("alone.cfg"), folder_.Read("out/tavmoor.cfg"));
}

TEST_F(CliTest, ChecksAProject) {
    const std::string project =
        Changed("Osnovna podesavanja", "Glavni direktorijum=" + folder_.Document("disc") + "\r\n");
    Result result = Run({"check", project, "--program-folder", "program"});
    EXPECT_EQ(result.exit, 0);
    EXPECT_EQ(result.out + result.error, "");
    folder_.Write("program/Examples/Photo album/back.jpg", "");
    result = Run({"check", project, "--program-folder", "program"});
    EXPECT_EQ(result.exit, 1);
    EXPECT_TRUE(Has(result.out, "\\back.jpg is empty.\n")) << result.out;
    EXPECT_EQ(result.error, "");
}

TEST_F(CliTest, ListsAndExtractsPackages) {
    const test::PackedFile first{"tavmoor.cfg", "first"};
    folder_.Write("good.arn", PackageBytes({first, {"a b.gif", "picture"}}));
    EXPECT_EQ(Run({"package", "list", "good.arn"}).out, "5\ttavmoor.cfg\n7\ta b.gif\n");
    EXPECT_EQ(Run({"package", "extract", folder_.Document("good.arn"), "deep/out"}).exit, 0);
    EXPECT_EQ(folder_.Read("deep/out/a b.gif"), "picture");
    EXPECT_EQ(NamesIn("deep/out"), (Names{"a b.gif", "tavmoor.cfg"}));

    folder_.Write("damaged.arn", PackageBytes({first, {"a.gif", "99", "picture"}}));
    folder_.Write("other.arn", "MZ");
    const Names before = folder_.Names();
    for (const char* package : {"damaged.arn", "other.arn", "gone.arn", "disc"}) {
        for (const char* command : {"list", "extract"}) {
            std::vector<std::string> arguments{"package", command, package};
            if (command == std::string("extract")) {
                arguments.emplace_back("out");
            }
            const Result result = Run(arguments);
            EXPECT_EQ(result.exit, 1) << package;
            EXPECT_EQ(result.out, "");
            EXPECT_TRUE(IsOneErrorLine(result.error)) << result.error;
        }
    }
    for (const char* name : {"../evil", "..\\evil", "Z:\\evil", "/tmp/evil", "nul.txt", ""}) {
        folder_.Write("damaged.arn", PackageBytes({first, {name, "evil"}}));
        const Result result = Run({"package", "extract", "damaged.arn", "out"});
        EXPECT_EQ(result.exit, 1) << name;
        EXPECT_TRUE(IsOneErrorLine(result.error)) << result.error;
    }
    EXPECT_EQ(folder_.Names(), before);
}

TEST_F(CliTest, ListsNoControlCharacters) {
    folder_.Write("hostile.arn", PackageBytes({{"\x1B]0;title\x07 a\tb", "x"}}));
    const std::string out = Run({"package", "list", "hostile.arn"}).out;
    EXPECT_EQ(out.find_first_of("\x1B\x07"), std::string::npos);
    EXPECT_EQ(std::count(out.begin(), out.end(), '\t'), 1);
}

TEST_F(CliTest, NamesTheTemplates) {
    const Result result = Run({"templates", "--program-folder", "program"});
    EXPECT_EQ(result.exit, 0);
    EXPECT_TRUE(result.out.starts_with("ADVANCED VISUAL EDITOR\t" + folder_.Document("program") +
                                       "\\Templates\\Advanced visual editor\\"))
        << result.out;
    for (const char* name : {"\nHarbor\t", "\nMarquee\t", "\nNexus\t"}) {
        EXPECT_TRUE(Has(result.out, name)) << name;
    }
    EXPECT_EQ(Run({"templates", "--program-folder", "gone"}).exit, 1);
}

TEST_F(CliTest, TellsWhatItCannotDoInOneLine) {
    folder_.Write("junk.tavp", "no project");
    const std::vector<std::string> calls[] = {{"show", "gone.tavp"},
                                              {"show", "disc"},
                                              {"check", "junk.tavp"},
                                              {"config", "x.tavp"},
                                              {"build"},
                                              {"frobnicate", "x"},
                                              {"show", "a", "b"},
                                              {"build", "a", "--cd"},
                                              {"package"},
                                              {"build", "junk.tavp"}};
    for (const auto& call : calls) {
        const Result result = Run(call);
        EXPECT_NE(result.exit, 0) << call.front();
        EXPECT_EQ(result.out, "");
        EXPECT_TRUE(IsOneErrorLine(result.error)) << result.error;
    }
    EXPECT_TRUE(Has(Run({"frobnicate", "x"}).error, "frobnicate"));
    EXPECT_EQ(Run({"--help"}).exit, 0);
}

TEST_F(CliTest, OutputThatCannotBeWrittenIsAFailure) {
    const std::string line = "cd " + Quoted(folder_.Native()) + " && " + Quoted(TAVMOOR_CLI) +
                             " templates --program-folder program >/dev/full 2>console/error";
    EXPECT_EQ(WEXITSTATUS(std::system(line.c_str())), 1);
}

} // namespace tavmoor

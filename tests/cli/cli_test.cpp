#include "support/build_project.h"
#include "support/package_bytes.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <cstdlib>
#include <sys/wait.h>

namespace tavmoor {

namespace {

namespace fs = std::filesystem;
using test::Listing;
using test::PackageBytes;
using Arguments = std::vector<std::string>;

struct Result {
    int exit = -1;
    std::string out;
    std::string error;
};

bool Has(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
}

std::string Quoted(const std::string& text) {
    return "'" + text + "'"; // no test uses an apostrophe
}

/// Runs the program with a program folder that holds the real content, with small programs in the
/// templates. No working file stays in the temporary folder.
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
    void TearDown() override {
        std::error_code error;
        fs::remove(folder_.Native("tmp/TAVMOORBuild"), error); // the build folder stays, empty
        EXPECT_EQ(Names("tmp"), "");
    }

    Result Run(const Arguments& arguments, const std::string& out = "console/out",
               const std::string& locale = "en_US") const {
        std::string line = "cd " + Quoted(folder_.Native()) + " && LC_ALL=" + locale +
                           " TMPDIR=" + Quoted(folder_.Native("tmp")) + " " + Quoted(TAVMOOR_CLI);
        for (const std::string& argument : arguments) {
            line += " " + Quoted(argument);
        }
        const int status = std::system((line + " >" + out + " 2>console/error").c_str());
        return {WEXITSTATUS(status), folder_.Read("console/out"), folder_.Read("console/error")};
    }
    [[nodiscard]] Result Build(const std::string& project, const Arguments& more = {}) const {
        Arguments arguments{"build", project, "--program-folder", "program"};
        if (std::find(more.begin(), more.end(), "--cd-folder") == more.end()) {
            arguments.insert(arguments.end(), {"--cd-folder", "disc"});
        }
        arguments.insert(arguments.end(), more.begin(), more.end());
        return Run(arguments);
    }

    /// That a command fails with one line of this program's own, which says this.
    static void ExpectFailure(const Result& result, const std::string& part) {
        EXPECT_GT(result.exit, 0);
        EXPECT_TRUE(result.error.starts_with("tavmoor-cli: ")) << result.error;
        EXPECT_EQ(result.error.find('\n'), result.error.size() - 1) << result.error;
        EXPECT_TRUE(Has(result.error, part)) << result.error << " lacks " << part;
    }

    [[nodiscard]] std::string Names(const std::string& name) const {
        return Listing(folder_.Native(name));
    }
    /// The album with more lines in one of its sections.
    std::string Changed(const std::string& section, const std::string& lines) const {
        std::string text = folder_.Read(Album);
        text.insert(text.find("[" + section + "]") + section.size() + 4, lines);
        folder_.Write("changed.tavp", text);
        return "changed.tavp";
    }
    [[nodiscard]] std::string WithDiscFolder(const std::string& name) const {
        return Changed("Osnovna podesavanja",
                       "Glavni direktorijum=" + folder_.Document(name) + "\r\n");
    }

    static constexpr const char* Album = "program/Examples/Photo album.tavp";
    test::TemporaryFolder folder_;
    std::string runtime_ = test::ProgramOf(u"Orlenta");
};

} // namespace

TEST_F(CliTest, BuildsTheExamples) {
    for (const char* example : {"Photo album", "Software sampler", "Music evening"}) {
        const Result result = Build("program/Examples/" + std::string(example) + ".tavp");
        EXPECT_EQ(result.exit, 0);
        EXPECT_EQ(result.error, "");
        std::size_t from = 0;
        for (const char* line :
             {"Checking files...\n", "  checking Z:\\", "\\back.jpg\n",
              "Processing package files...\n", "  packing Z:\\", "\\back.jpg\n",
              "  package 100 %\n", "The autorun program has been created!\n", "Built in Z:\\"}) {
            from = result.out.find(line, from);
            EXPECT_NE(from, std::string::npos) << line;
        }
    }
    EXPECT_EQ(Names("disc"), "Autorun.arn Autorun.inf music.exe");
    EXPECT_EQ(folder_.Read("disc/music.exe"), runtime_);
    EXPECT_EQ(Build(Album, {"--name", "other"}).exit, 0);
    EXPECT_EQ(Names("disc"), "Autorun.arn Autorun.inf other.exe");
}

TEST_F(CliTest, ButtonRowsOfTheFileCountAsLive) {
    const std::string picture = folder_.Write("button.gif", "picture");
    const std::string row = "DugmePictureFile(3)=" + picture + "\r\n";
    const std::string project = Changed("Napredni sabloni", row);
    EXPECT_EQ(Build(project).exit, 0);
    EXPECT_EQ(Run({"package", "extract", "disc/Autorun.arn", "out"}).exit, 0);
    EXPECT_EQ(folder_.Read("out/button.gif"), "picture");
    EXPECT_TRUE(Has(folder_.Read("out/tavmoor.cfg"), "\r\nDugmePictureFile(3)=button.gif\r\n"));
    EXPECT_EQ(Run({"resave", project, "live.tavp"}).exit, 0);
    EXPECT_EQ(Run({"resave", project, "read.tavp", "--as-read"}).exit, 0);
    EXPECT_TRUE(Has(folder_.Read("live.tavp"), row));
    EXPECT_FALSE(Has(folder_.Read("read.tavp"), "DugmePictureFile"));
    fs::remove(folder_.Native("button.gif"));
    ExpectFailure(Build(project), "button.gif used in this project could not be found!");
    EXPECT_EQ(Run({"config", project, "alone.cfg"}).exit, 0) << "only warns";
}

TEST_F(CliTest, TakesAndPrintsPathsInUtf8) {
    const std::pair<const char*, const char*> folders[] = {{"de_DE.UTF-8", "caf\u00E9"},
                                                           {"hr_HR.UTF-8", "\u010Da\u0161a"}};
    const std::string project = folder_.Document() + "\\program\\examples\\PHOTO ALBUM.tavp";
    for (const auto& [locale, name] : folders) {
        fs::create_directories(folder_.Native(name));
        const std::string document = folder_.Document() + "\\" + name;
        for (const std::string& path :
             {name + std::string("/"), folder_.Native(name).string(), document}) {
            const Result result =
                Run({"build", project, "--program-folder", "program/", "--cd-folder", path},
                    "console/out", locale);
            EXPECT_EQ(result.error, "");
            EXPECT_TRUE(Has(result.out, "Built in " + document)) << result.out;
        }
        EXPECT_EQ(Names(name), "Autorun.arn Autorun.inf photos.exe");
    }
    ExpectFailure(Build(Album, {"--cd-folder", "\u010Da\u0161a"}), "\u010Da\u0161a");
}

TEST_F(CliTest, ABuildThatIsNotWholeFails) {
    folder_.Write("file", "no folder");
    const std::string none = " does not exist! You have to select CD-ROM files folder";
    ExpectFailure(Build(Album, {"--cd-folder", "gone"}), folder_.Document("gone") + none);
    ExpectFailure(Build(Album, {"--cd-folder", "file"}), folder_.Document("file") + none);
    ExpectFailure(Build(Album, {"--name", "my app"}), "It is highly recomended that filename");
    EXPECT_EQ(Names("disc"), "");
    folder_.Write("disc/Autorun.inf/file", "a folder stands in the way");
    const Result result = Build(Album);
    EXPECT_EQ(result.exit, 1);
    EXPECT_TRUE(Has(result.error, "Autorun.inf in the CD-ROM files folder is a folder"));
    EXPECT_FALSE(Has(result.out, "Built in"));
    fs::remove_all(folder_.Native("disc/Autorun.inf"));
    folder_.Write("disc/photos.exe", "somebody else's");
    ExpectFailure(Build(Album), "was not made by this program. --replace replaces it.");
    EXPECT_EQ(Build(Album, {"--replace"}).exit, 0);
    fs::remove(folder_.Native("program/Templates/Marquee/template.tavexe"));
    ExpectFailure(Build(Album), "\\Marquee\\template.tavexe is missing");
}

TEST_F(CliTest, ABuildThatNobodyReadsLeavesNoWorkingFiles) {
    const Arguments build{"build", Album, "--cd-folder", "disc", "--program-folder", "program"};
    Run(build, "&1 2>console/error | true"); // the temporary files are asked for afterwards
}

TEST_F(CliTest, NeverTakesAnEmptyArgumentForAMissingOne) {
    fs::create_directory(folder_.Native("own"));
    ExpectFailure(Build(WithDiscFolder("own"), {"--cd-folder", ""}), "path is empty");
    EXPECT_EQ(Names("own"), "") << "the project's folder was not asked for";
    ExpectFailure(Build(Album, {"--name", ""}), "Filename cannot be blank!");
    ExpectFailure(Run({"build", Album, "--program-folder", "program"}),
                  "the project names no CD-ROM files folder");
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
    EXPECT_TRUE(result.error.starts_with("tavmoor-cli: Run-time error '9': ")) << result.error;
    EXPECT_TRUE(Has(result.error, "\\changed-2.recovered.tavp\n")) << result.error;
    EXPECT_TRUE(Has(folder_.Read("changed-2.recovered.tavp"), "VideoFajl19="));
    EXPECT_EQ(folder_.Read("changed.recovered.tavp"), "of an earlier time");
    EXPECT_EQ(Names("disc"), "");
}

TEST_F(CliTest, ResavesWithoutAChange) {
    for (const std::string name : {"Photo album", "Music evening", "Software sampler"}) {
        const std::string from = "program/Examples/" + name + ".tavp";
        EXPECT_EQ(Run({"resave", from, "1.tavp", "--program-folder", "program"}).exit, 0);
        EXPECT_EQ(Run({"resave", "1.tavp", "2.tavp"}).exit, 0);
        EXPECT_EQ(folder_.Read("2.tavp"), folder_.Read("1.tavp"));
        EXPECT_GT(folder_.Read("1.tavp").size(), folder_.Read(from).size()) << "whole paths";
    }
    ExpectFailure(Run({"resave", Album, "gone/out.tavp"}), "gone\\out.tavp");
    const std::string cut = Changed("Uvod", "Poruka=" + std::string(1024, 'x') + "\r\n");
    EXPECT_EQ(Run({"resave", cut, "1.tavp"}).error,
              "tavmoor-cli: warning: [Uvod] Poruka is cut after 1023 characters\n");
}

TEST_F(CliTest, ShowsWhatAProjectSays) {
    const std::string project = Changed("Osnovni podaci", "Tasknaslov=caf\xE9"
                                                          "Chr$(13)Chr$(10)two\r\n");
    const auto json = nlohmann::json::parse(Run({"show", project, "--json"}).out);
    EXPECT_EQ(json["Osnovni podaci"]["Tasknaslov"], "caf\u00E9\r\ntwo");
    EXPECT_EQ(json["Osnovna podesavanja"]["Boja prozora"], 4662301);
    EXPECT_EQ(json["Uvod"]["Prikazi"], true);
    EXPECT_FALSE(json["Osnovni podaci"].contains("Ikona"));
    const std::string text = Run({"show", project}).out;
    EXPECT_TRUE(Has(text, "[Osnovni podaci]\n")) << text;
    EXPECT_TRUE(Has(text, "\nTasknaslov=caf\u00E9"
                          "Chr$(13)Chr$(10)two\n"))
        << text;
    EXPECT_FALSE(Has(text, "Ikona="));

    EXPECT_EQ(Build(project).exit, 0);
    EXPECT_EQ(Run({"package", "extract", "disc/Autorun.arn", "out"}).exit, 0);
    EXPECT_EQ(Run({"config", project, "alone.cfg", "--program-folder", "program"}).exit, 0);
    EXPECT_EQ(folder_.Read("alone.cfg"), folder_.Read("out/tavmoor.cfg"));
}

TEST_F(CliTest, ChecksAProject) {
    const Arguments check{"check", WithDiscFolder("disc"), "--program-folder", "program"};
    Result result = Run(check);
    EXPECT_EQ(result.exit, 0);
    EXPECT_EQ(result.out + result.error, "");
    folder_.Write("program/Examples/Photo album/back.jpg", "");
    result = Run(check);
    EXPECT_EQ(result.exit, 1);
    EXPECT_TRUE(Has(result.out, "\\back.jpg is empty.\n")) << result.out;
}

TEST_F(CliTest, ListsAndExtractsPackages) {
    const test::PackedFile first{"tavmoor.cfg", "first"};
    folder_.Write("good.arn", PackageBytes({first, {"a b.gif", "picture"}}));
    EXPECT_EQ(Run({"package", "list", "good.arn"}).out, "5\ttavmoor.cfg\n7\ta b.gif\n");
    EXPECT_EQ(Run({"package", "extract", folder_.Document("good.arn"), "deep/out"}).exit, 0);
    EXPECT_EQ(folder_.Read("deep/out/a b.gif"), "picture");
    EXPECT_EQ(Names("deep/out"), "a b.gif tavmoor.cfg");

    folder_.Write("damaged.arn", PackageBytes({first, {"a.gif", "99", "picture"}}));
    folder_.Write("other.arn", "MZ");
    folder_.Write("hostile.arn", "");
    const std::string before = Names("");
    for (const char* package : {"damaged.arn", "other.arn", "gone.arn", "disc"}) {
        ExpectFailure(Run({"package", "list", package}), "");
        ExpectFailure(Run({"package", "extract", package, "out"}), "");
    }
    for (const std::string& name : {std::string("../evil"), std::string("..\\evil"),
                                    folder_.Native("evil").string(), folder_.Document("evil")}) {
        folder_.Write("hostile.arn", PackageBytes({first, {name, "evil"}}));
        ExpectFailure(Run({"package", "extract", "hostile.arn", "out"}), "unsafe name");
    }
    folder_.Write("hostile.arn", PackageBytes({{"\x1B]0;title\x07 a\tb", "x"}}));
    EXPECT_EQ(Run({"package", "list", "hostile.arn"}).out, "1\t?]0;title? a?b\n");
    EXPECT_EQ(Names(""), before);
}

TEST_F(CliTest, NamesTheTemplates) {
    const std::string out = Run({"templates", "--program-folder", "program"}).out;
    EXPECT_TRUE(out.starts_with("ADVANCED VISUAL EDITOR\t" + folder_.Document("program") +
                                "\\Templates\\Advanced visual editor\\"))
        << out;
    for (const char* name : {"\nHarbor\t", "\nMarquee\t", "\nNexus\t"}) {
        EXPECT_TRUE(Has(out, name)) << name;
    }
    ExpectFailure(Run({"templates", "--program-folder", "gone"}), "gone");
}

TEST_F(CliTest, TellsWhatItCannotDoInOneLine) {
    folder_.Write("junk.tavp", "no project");
    const std::pair<Arguments, const char*> calls[] = {
        {{"show", "gone.tavp"}, "\\gone.tavp"},  {{"show", "disc"}, "\\disc"},
        {{"check", "junk.tavp"}, "\\junk.tavp"}, {{"build", "junk.tavp"}, "\\junk.tavp"},
        {{"config", "x.tavp"}, "OUT"},           {{"build"}, "PROJECT"},
        {{"show", "a", "more"}, "more"},         {{"build", "a", "--cd"}, "--cd"},
        {{"frobnicate", "x"}, "frobnicate"}};
    for (const auto& [arguments, part] : calls) {
        ExpectFailure(Run(arguments), part);
    }
    EXPECT_EQ(Run({"--help"}).exit, 0);
    ExpectFailure(Run({"templates", "--program-folder", "program"}, "/dev/full"), "output");
}

} // namespace tavmoor

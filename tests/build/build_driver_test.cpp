#include "build/build_driver.h"

#include "build/package_reader.h"
#include "core/field_writer.h"
#include "core/profile_file.h"
#include "core/runtime_error.h"
#include "support/build_project.h"
#include "support/recording_build_events.h"

#include <gtest/gtest.h>

#include <algorithm>

#ifndef _WIN32
#include <unistd.h>
#endif

namespace tavmoor {

namespace {

namespace fs = std::filesystem;
using Names = std::set<std::string>;
using Log = std::vector<std::string>;
using test::ProgramOf;

class BuildDriverTest : public testing::Test {
protected:
    BuildOutcome Build() { return BuildAutorun(document_, request_, events_); }

    /// The number of the run-time error that the build ends with; its text is kept.
    int ErrorOfBuild() {
        try {
            Build();
        } catch (const RuntimeError& error) {
            errorText_ = error.what();
            return static_cast<int>(error.Number());
        }
        return 0;
    }

    [[nodiscard]] std::string Disc(const std::string& name) const {
        return project_.folder.Read("disc/" + name);
    }
    void PutOnDisc(const std::string& name, const std::string& bytes) const {
        project_.folder.Write("disc/" + name, bytes);
    }
    [[nodiscard]] Names OnDisc() const { return project_.NamesIn("disc"); }
    [[nodiscard]] bool Told(const std::string& entry) const {
        return std::find(events_.log.begin(), events_.log.end(), entry) != events_.log.end();
    }

    test::BuildProject project_;
    ProjectDocument& document_ = *project_.document;
    BuildRequest request_{"start", project_.folder.Document("work"), false};
    test::RecordingBuildEvents events_;
    std::string errorText_;
};

} // namespace

TEST_F(BuildDriverTest, TellsEveryStepOfAGoodBuild) {
    EXPECT_EQ(Build(), BuildOutcome::Built);
    const std::string configuration = project_.folder.Document("work/tavmoor.cfg");
    const std::string back = document_.OsnovnaPodesavanja.PozadinskaSlika;
    const std::string icon = document_.OsnovniPodaci.Ikona;
    const std::size_t first = FieldFileText(document_, FieldFile::Configuration).size();
    const auto packed = [first](std::size_t done) {
        return "packed " + std::to_string(first + done) + "/" + std::to_string(first + 14);
    };
    EXPECT_EQ(
        events_.log,
        (Log{"colour 16777215", "disable",       "status Checking files...",
             "events",          "wait 300",      "check " + configuration,
             "check " + back,   "check " + icon, "status Processing package files...",
             "events",          "wait 300",      "pack " + configuration,
             packed(0),         "events",        "pack " + back,
             packed(10),        "events",        "pack " + icon,
             packed(14),        "events",        "status The autorun program has been created!",
             "events",          "wait 100",      "wait 100",
             "wait 100",        "wait 100",      "events",
             "wait 100",        "enable"}));
    EXPECT_EQ(document_.OsnovniPodaci.exename, "start.exe");
    EXPECT_EQ(document_.Working.TemplateRuntimePath,
              project_.folder.Document("template") + "\\template.tavexe");
    EXPECT_EQ(document_.Working.listafajlova, (Log{configuration, back, icon}));
}

TEST_F(BuildDriverTest, PlacesTheOutputInOrderAndLeavesTheBuildFolderEmpty) {
    for (const char* name : {"Autorun.arn", "Autorun.ico", "Autorun.inf"}) {
        PutOnDisc(name, "older and longer than any of the new ones, " + std::string(9999, 'x'));
    }
    document_.OsnovnaPodesavanja.GlavniDirektorijum += "\\";
    std::vector<Names> placed;
    Names built;
    events_.onEntry = [&](const std::string& entry) {
        if (entry == "wait 100") {
            placed.push_back(OnDisc());
        } else if (entry.starts_with("status The autorun")) {
            built = project_.NamesIn("work");
        }
    };
    EXPECT_EQ(Build(), BuildOutcome::Built);
    EXPECT_EQ(built, (Names{"autorun.arn", "start.exe"})) << "the configuration is gone by then";
    EXPECT_EQ(placed,
              (std::vector<Names>{{},
                                  {"start.exe"},
                                  {"Autorun.arn", "start.exe"},
                                  {"Autorun.arn", "Autorun.ico", "start.exe"},
                                  {"Autorun.arn", "Autorun.ico", "Autorun.inf", "start.exe"}}));
    EXPECT_EQ(project_.NamesIn("work"), Names{});

    EXPECT_EQ(Disc("start.exe"), project_.runtime);
    EXPECT_EQ(Disc("Autorun.ico"), "icon");
    EXPECT_EQ(Disc("Autorun.inf"), "[Autorun]\r\nOpen=start.exe\r\nIcon=Autorun.ico\r\n");
    PackageFile package(project_.folder.Native("disc/Autorun.arn"));
    ASSERT_EQ(package.Entries().size(), 3U);
    EXPECT_EQ(package.Read(package.Entries()[0]),
              FieldFileText(document_, FieldFile::Configuration));
    EXPECT_EQ(package.Entries()[1].name, "back.bmp");
    EXPECT_EQ(package.Read(package.Entries()[1]), "background");
    EXPECT_EQ(package.Entries()[2].name, "blue.ico");
    EXPECT_EQ(package.Read(package.Entries()[2]), "icon");
}

TEST_F(BuildDriverTest, ARefusedBuildTouchesNoFile) {
    struct Case {
        const char* name;
        const char* folder; ///< below the project's; nullptr for its disc
        BuildOutcome outcome;
        Log log;
    };
    const std::string missing = project_.folder.Document("gone");
    const std::string badName =
        "message [] It is highly recomended that filename contains of following characters\r\n"
        "1234567890qwertyuiopasdfghjklzxcvbnmQWERTYUIOPASDFGHJKLZXCVBNM\r\n"
        R"(Make sure filename does not contain spaces or characters such as |\''?*<':>+[]/)"
        "\r\n\r\n"
        "You want to be sure that your program will work on any computer running Windows "
        "operating system.";
    const std::string noFolder =
        "critical [Error...] " + missing +
        " does not exist!\r\nYou have to select CD-ROM files folder on your local disk.";
    const Case cases[] = {
        {"", "gone", BuildOutcome::FolderMissing, {"mark folder", noFolder}},
        {"my  app", nullptr, BuildOutcome::NameRefused, {"colour 65535", badName, "name my__app"}},
        {" a.b", nullptr, BuildOutcome::NameRefused, {"colour 65535", badName, "name _a.b"}},
        {"caf\xE9", nullptr, BuildOutcome::NameRefused, {"colour 65535", badName, "name caf\xE9"}},
        {"",
         nullptr,
         BuildOutcome::NameEmpty,
         {"colour 65535", "message [] Filename cannot be blank!"}},
    };
    PutOnDisc("Autorun.arn", "older");
    project_.folder.Write("work/autorun.arn", "older");
    document_.Uvod.Vreme = "";
    for (const Case& refused : cases) {
        document_.OsnovnaPodesavanja.GlavniDirektorijum =
            project_.folder.Document(refused.folder != nullptr ? refused.folder : "disc");
        request_.name = refused.name;
        events_.log.clear();
        EXPECT_EQ(Build(), refused.outcome);
        EXPECT_EQ(events_.log, refused.log);
        EXPECT_EQ(document_.OsnovniPodaci.exename, "");
        EXPECT_EQ(document_.Uvod.Vreme, "");
    }
    EXPECT_EQ(OnDisc(), Names{"Autorun.arn"});
    EXPECT_EQ(project_.NamesIn("work"), Names{"autorun.arn"});
}

TEST_F(BuildDriverTest, AnUnreadableFileAbortsBeforeThePackage) {
    PutOnDisc("Autorun.arn", "older");
    const std::string missing = project_.folder.Document("art/gone.wav");
    document_.Zvuk.Fajl = missing;
    EXPECT_EQ(Build(), BuildOutcome::FileUnreadable);
    const Log end(events_.log.end() - 5, events_.log.end());
    EXPECT_EQ(end, (Log{"check " + missing,
                        "message [Error in file] There was an error accessing file " + missing +
                            "\r\nCheck if the file exist!",
                        "status Aborted\r\nThere was an error while accessing file " + missing +
                            ". Check if file exist!",
                        "events", "enable"}));
    EXPECT_EQ(OnDisc(), Names{"Autorun.arn"});
    EXPECT_EQ(project_.NamesIn("work"), Names{"tavmoor.cfg"});
}

TEST_F(BuildDriverTest, AFontIsFirstAskedForWhenItIsPacked) {
    document_.Fontovi[0] = project_.folder.Document("art/gone.ttf");
    EXPECT_EQ(ErrorOfBuild(), 53);
    EXPECT_NE(errorText_.find("gone.ttf"), std::string::npos);
    document_.Fontovi[0] = project_.folder.Write("art/serif.ttf", "font");
    document_.Fontovi[1] = document_.OsnovniPodaci.Ikona;
    events_.log.clear();
    EXPECT_EQ(Build(), BuildOutcome::Built);
    EXPECT_FALSE(Told("check " + document_.Fontovi[0]));
    const PackageFile package(project_.folder.Native("disc/Autorun.arn"));
    EXPECT_EQ(package.Entries().size(), 4U);
    EXPECT_EQ(package.Entries().back().name, "serif.ttf");
}

TEST_F(BuildDriverTest, EmptyScreenTimesBecomeFiveSeconds) {
    document_.Uvod.Vreme = document_.Izlaz.Vreme = "";
    EXPECT_EQ(Build(), BuildOutcome::Built);
    EXPECT_EQ(document_.Uvod.Vreme, "5");
    PackageFile package(project_.folder.Native("disc/Autorun.arn"));
    const ProfileFile configuration(package.Read(package.Entries().front()));
    EXPECT_EQ(configuration.Value("Uvod", "Vreme"), "5");
    EXPECT_EQ(configuration.Value("Izlaz", "Vreme"), "5");
}

TEST_F(BuildDriverTest, OnlyProgramsOfThisMakerAreDeleted) {
    PutOnDisc("old.exe", project_.runtime);
    PutOnDisc("OLDER.EXE",
              MakePeImage(test::VersionResourceOf(u"Orlenta"), test::PeKind::Pe32Plus).bytes);
    const std::pair<const char*, std::string> others[] = {{"setup.exe", ProgramOf(u"Northlight")},
                                                          {"near.exe", ProgramOf(u"Orlenta Ltd")},
                                                          {"case.exe", ProgramOf(u"orlenta")},
                                                          {"no program.exe", "Orlenta"},
                                                          {"empty.exe", ""},
                                                          {"old.dll", project_.runtime},
                                                          {"tools/old.exe", project_.runtime}};
    for (const auto& [name, bytes] : others) {
        PutOnDisc(name, bytes);
    }
    project_.folder.Write("work/old.exe", project_.runtime);
    project_.folder.Write("work/mine.exe", "notes");
    EXPECT_EQ(Build(), BuildOutcome::Built);
    EXPECT_EQ(OnDisc(),
              (Names{"Autorun.arn", "Autorun.ico", "Autorun.inf", "case.exe", "empty.exe",
                     "near.exe", "no program.exe", "old.dll", "setup.exe", "start.exe", "tools"}));
    for (const auto& [name, bytes] : others) {
        EXPECT_EQ(Disc(name), bytes);
    }
    EXPECT_EQ(project_.NamesIn("work"), Names{"mine.exe"});
}

TEST_F(BuildDriverTest, AProgramThatStaysIsOverwrittenByTheAutorunOfItsName) {
    PutOnDisc("start.exe", ProgramOf(u"Northlight"));
    EXPECT_EQ(Build(), BuildOutcome::Built);
    EXPECT_EQ(Disc("start.exe"), project_.runtime);
}

TEST_F(BuildDriverTest, WithoutAnIconTheProgramShowsItsOwn) {
    PutOnDisc("Autorun.ico", "older");
    document_.OsnovniPodaci.Ikona = "";
    EXPECT_EQ(Build(), BuildOutcome::Built);
    EXPECT_EQ(OnDisc(), (Names{"Autorun.arn", "Autorun.inf", "start.exe"}));
    EXPECT_EQ(Disc("Autorun.inf"), "[Autorun]\r\nOpen=start.exe\r\nIcon=start.exe\r\n");
}

TEST_F(BuildDriverTest, WithoutTheTemplatesProgramTheRestIsPlaced) {
    const std::string descriptors[] = {project_.folder.Document("other/Blue.tavt"), ""};
    for (const std::string& descriptor : descriptors) {
        document_.OsnovnaPodesavanja.Sablon = descriptor;
        PutOnDisc("old.exe", project_.runtime);
        EXPECT_EQ(Build(), BuildOutcome::Built);
        EXPECT_EQ(OnDisc(), (Names{"Autorun.arn", "Autorun.ico", "Autorun.inf"}));
        EXPECT_EQ(Disc("Autorun.inf"), "[Autorun]\r\nOpen=start.exe\r\nIcon=Autorun.ico\r\n");
        EXPECT_EQ(events_.log.back(), "enable");
    }
}

TEST_F(BuildDriverTest, OnlyTheProgramIsPlacedASecondTime) {
    bool named = false;
    events_.onEntry = [&](const std::string& entry) {
        named = named || (entry == "wait 100" && OnDisc().contains("Autorun.inf"));
        if (named && entry == "wait 100") {
            fs::remove(project_.folder.Native("disc/start.exe"));
            fs::remove(project_.folder.Native("disc/Autorun.arn"));
        }
    };
    EXPECT_EQ(Build(), BuildOutcome::Built);
    EXPECT_EQ(OnDisc(), (Names{"Autorun.ico", "Autorun.inf", "start.exe"}));
    EXPECT_EQ(Disc("start.exe"), project_.runtime);
}

TEST_F(BuildDriverTest, StartsTheAutorunWhenAsked) {
    request_.startAfterBuild = true;
    bool stillThere = false;
    events_.onEntry = [&](const std::string& entry) {
        stillThere = stillThere || (entry.starts_with("start ") && OnDisc().contains("start.exe"));
    };
    EXPECT_EQ(Build(), BuildOutcome::Built);
    const Log end(events_.log.end() - 6, events_.log.end());
    EXPECT_EQ(end, (Log{"status Starting autorun...", "events",
                        "start " + project_.folder.Document("disc") + "\\start.exe",
                        "status Completed...", "events", "enable"}));
    EXPECT_TRUE(stillThere);
}

TEST_F(BuildDriverTest, APackageHoldsTwentyFiles) {
    document_.OsnovniPodaci.Ikona = "";
    project_.AddFilms(18);
    EXPECT_EQ(Build(), BuildOutcome::Built);
    EXPECT_EQ(document_.Working.listafajlova.size(), 20U);
    project_.AddFilms(19);
    PutOnDisc("start.exe", "an earlier build");
    EXPECT_EQ(ErrorOfBuild(), 9);
    EXPECT_NE(errorText_.find("19.avi"), std::string::npos) << errorText_;
    EXPECT_EQ(Disc("start.exe"), "an earlier build");
}

TEST_F(BuildDriverTest, ANameOutsideEnglishCannotBePacked) {
    document_.OsnovniPodaci.Logoslika = project_.folder.Document("art") + "\\caf\xE9.gif";
    std::ofstream(NativePath(document_.OsnovniPodaci.Logoslika)) << "logo";
    EXPECT_EQ(ErrorOfBuild(), 5);
    EXPECT_NE(errorText_.find("caf\xE9.gif"), std::string::npos) << errorText_;
}

TEST_F(BuildDriverTest, TheNameToStartFromIsTheLastOneOrTheTitle) {
    EXPECT_EQ(InitialAutorunName(document_), "Holiday");
    document_.OsnovniPodaci.exename = "start.EXE";
    EXPECT_EQ(InitialAutorunName(document_), "start");
    document_.OsnovniPodaci.exename = "start";
    EXPECT_EQ(InitialAutorunName(document_), "start");
}

TEST_F(BuildDriverTest, AMissingBuildFolderEndsTheBuild) {
    request_.buildFolder = project_.folder.Document("nowhere");
    EXPECT_EQ(ErrorOfBuild(), 76);
    EXPECT_EQ(OnDisc(), Names{});
}

#ifndef _WIN32

TEST_F(BuildDriverTest, AForeignBuildFolderIsRefused) {
    project_.folder.Write("elsewhere/autorun.arn", "somebody's");
    fs::create_directory_symlink(project_.folder.Native("elsewhere"),
                                 project_.folder.Native("link"));
    for (const char* ending : {"", "\\"}) {
        request_.buildFolder = project_.folder.Document("link") + ending;
        EXPECT_EQ(ErrorOfBuild(), 70);
    }
    if (geteuid() == 0) {
        constexpr uid_t other = 12345;
        ASSERT_EQ(chown(project_.folder.Native("elsewhere").c_str(), other, other), 0);
        request_.buildFolder = project_.folder.Document("elsewhere");
        EXPECT_EQ(ErrorOfBuild(), 70);
    }
    EXPECT_EQ(project_.NamesIn("elsewhere"), Names{"autorun.arn"});
    EXPECT_EQ(OnDisc(), Names{});
}

#endif

} // namespace tavmoor

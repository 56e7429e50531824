#include "disc/build_driver.h"

#include "core/document/field_writer.h"
#include "core/files/profile_file.h"
#include "core/files/runtime_error.h"
#include "package/package_reader.h"
#include "support/build_project.h"
#include "support/recording_build_events.h"

#include <gtest/gtest.h>

#ifndef _WIN32
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>
#endif

namespace tavmoor {

namespace {

namespace fs = std::filesystem;
using test::Listing;
using test::ProgramOf;

class BuildDriverTest : public testing::Test {
protected:
    /// How the build ends: "built", or the text that it tells.
    std::string Build() {
        events_.log.clear();
        try {
            outcome_ = BuildAutorun(document_, request_, events_);
            EXPECT_EQ(outcome_.IsWhole(), outcome_.text.empty());
            return outcome_.IsWhole() ? "built" : Short(outcome_.text);
        } catch (const RuntimeError& error) {
            return Short(error.what());
        }
    }

    /// A text in which "~" stands for the folder of the project, "*" for the name of the working
    /// folder, and "|" for line ends.
    [[nodiscard]] std::string Short(std::string text) const {
        const auto replace = [&text](const std::string& old, const char* fresh) {
            for (auto at = text.find(old); at != std::string::npos; at = text.find(old)) {
                text.replace(at, old.size(), fresh);
            }
        };
        replace(project_.folder.Document(), "~");
        replace("\r\n", "|");
        const std::string work = "tavmoor-work-";
        for (auto at = text.find(work); at != std::string::npos; at = text.find(work)) {
            text.replace(at, work.size() + 8, "*");
        }
        return text;
    }
    [[nodiscard]] std::string Log() const { return Short(events_.log); }

    [[nodiscard]] std::string Disc(const std::string& name) const {
        return project_.folder.Read("disc/" + name);
    }
    void PutOnDisc(const std::string& name, const std::string& bytes) const {
        project_.folder.Write("disc/" + name, bytes);
    }
    [[nodiscard]] std::string OnDisc() const { return Listing(project_.folder.Native("disc")); }
    [[nodiscard]] std::string AtWork() const { return Listing(project_.folder.Native("work")); }

    test::BuildProject project_;
    ProjectDocument& document_ = *project_.document;
    BuildRequest request_{"start", project_.folder.Document("work"), false};
    test::RecordingBuildEvents events_;
    BuildOutcome outcome_;
};

} // namespace

TEST_F(BuildDriverTest, TellsAndDoesEachStepInOrder) {
    for (const char* name : {"Autorun.arn", "Autorun.ico", "Autorun.inf"}) {
        PutOnDisc(name, "older");
    }
    events_.onLine = [this](const std::string& line) {
        const bool created = line.starts_with("status The autorun");
        return line + (created ? " (" + OnDisc().substr(OnDisc().find("Autorun")) + ")" : "");
    };
    request_.startAfterBuild = true;
    EXPECT_EQ(Build(), "built");
    const std::size_t size = FieldFileText(document_, FieldFile::Configuration).size();
    const auto packed = [size](std::size_t done) {
        return "packed " + std::to_string(size + done) + "/" + std::to_string(size + 14);
    };
    EXPECT_EQ(Log(), "status Checking files...\nevents\nwait 300\n"
                     "check ~\\work\\*\\tavmoor.cfg\ncheck ~\\art\\back.bmp\n"
                     "check ~\\art\\blue.ico\n"
                     "status Processing package files...\nevents\nwait 300\n"
                     "pack ~\\work\\*\\tavmoor.cfg\n" +
                         packed(0) + "\nevents\npack ~\\art\\back.bmp\n" + packed(10) +
                         "\nevents\npack ~\\art\\blue.ico\n" + packed(14) +
                         "\nevents\n"
                         "status The autorun program has been created! "
                         "(Autorun.arn Autorun.ico Autorun.inf start.exe)\nevents\n"
                         "status Starting autorun...\nevents\nstart ~\\disc\\start.exe\n"
                         "status Completed...\nevents\n");
    EXPECT_EQ(AtWork(), "");
    EXPECT_EQ(outcome_.placed,
              (std::vector<std::string>{"start.exe", "Autorun.arn", "Autorun.ico", "Autorun.inf"}));
    EXPECT_EQ(document_.OsnovniPodaci.exename, "start.exe");
    EXPECT_EQ(Short(document_.Working.TemplateRuntimePath), "~\\template\\template.tavexe");
}

TEST_F(BuildDriverTest, PlacesTheFourFiles) {
    document_.OsnovnaPodesavanja.GlavniDirektorijum += "\\";
    document_.Uvod.Vreme = document_.Izlaz.Vreme = "";
    EXPECT_EQ(Build(), "built");
    EXPECT_EQ(Log().find("start "), std::string::npos) << "not asked for";
    EXPECT_EQ(Disc("start.exe"), project_.runtime);
    EXPECT_EQ(Disc("Autorun.ico"), "icon");
    EXPECT_EQ(Disc("Autorun.inf"), "[Autorun]\r\nOpen=start.exe\r\nIcon=Autorun.ico\r\n");
    auto opened = std::make_unique<PackageFile>(project_.folder.Native("disc/Autorun.arn"));
    PackageFile& package = *opened;
    const auto& entries = package.Entries();
    ASSERT_EQ(entries.size(), 3U);
    const ProfileFile configuration(package.Read(entries[0]));
    EXPECT_EQ(configuration.Value("Uvod", "Vreme"), "5");
    EXPECT_EQ(configuration.Value("Izlaz", "Vreme"), "5");
    EXPECT_EQ(document_.Uvod.Vreme + document_.Izlaz.Vreme, "55") << "the project keeps them";
    EXPECT_EQ(entries[1].name + "=" + package.Read(entries[1]), "back.bmp=background");
    EXPECT_EQ(entries[2].name + "=" + package.Read(entries[2]), "blue.ico=icon");
    opened.reset(); // what is open is in use on Windows

    document_.OsnovniPodaci.Ikona = "";
    EXPECT_EQ(Build(), "built");
    EXPECT_EQ(OnDisc(), "Autorun.arn Autorun.inf start.exe") << "the old icon goes";
    EXPECT_EQ(Disc("Autorun.inf"), "[Autorun]\r\nOpen=start.exe\r\nIcon=start.exe\r\n");
}

TEST_F(BuildDriverTest, ARefusedBuildTouchesNoFile) {
    const std::string badName =
        "It is highly recomended that filename contains of following characters|"
        "1234567890qwertyuiopasdfghjklzxcvbnmQWERTYUIOPASDFGHJKLZXCVBNM|"
        R"(Make sure filename does not contain spaces or characters such as |\''?*<':>+[]/)"
        "||You want to be sure that your program will work on any computer running Windows "
        "operating system.";
    const std::array<std::string, 4> cases[] = {
        {"", "gone", "",
         "~\\gone does not exist!|You have to select CD-ROM files folder on your local disk."},
        {"my  app", "disc", "my__app", badName},
        {" a.b", "disc", "_a.b", badName},
        {"caf\xE9", "disc", "caf\xE9", badName},
        {"", "disc", "", "Filename cannot be blank!"},
    };
    PutOnDisc("Autorun.arn", "older");
    project_.folder.Write("work/autorun.arn", "older");
    document_.Uvod.Vreme = "";
    for (const auto& [name, folder, suggested, text] : cases) {
        document_.OsnovnaPodesavanja.GlavniDirektorijum = project_.folder.Document(folder);
        request_.name = name;
        EXPECT_EQ(Build(), text);
        EXPECT_EQ(outcome_.suggestedName, suggested);
        EXPECT_EQ(Log(), "");
    }
    EXPECT_EQ(OnDisc() + " " + AtWork(), "Autorun.arn autorun.arn");
    EXPECT_EQ(document_.OsnovniPodaci.exename + document_.Uvod.Vreme, "");
}

TEST_F(BuildDriverTest, AnUnreadableFileAbortsTheBuild) {
    PutOnDisc("Autorun.arn", "older");
    document_.Zvuk.Fajl = project_.folder.Document("gone.wav");
    EXPECT_EQ(Build(), "There was an error accessing file ~\\gone.wav|Check if the file exist!");
    EXPECT_EQ(outcome_.title, "Error in file");
    EXPECT_TRUE(Log().ends_with("check ~\\gone.wav\nstatus Aborted|There was an error while "
                                "accessing file ~\\gone.wav. Check if file exist!\nevents\n"))
        << Log();
    EXPECT_EQ(OnDisc() + AtWork(), "Autorun.arn");

    document_.Zvuk.Fajl = "";
    document_.Fontovi[0] = project_.folder.Document("gone.ttf");
    EXPECT_EQ(Build(), "Run-time error '53': File not found: ~\\gone.ttf") << "not checked before";
}

TEST_F(BuildDriverTest, OlderOutputGoesAndNothingElse) {
    PutOnDisc("old.exe", project_.runtime);
    PutOnDisc("OLDER.EXE",
              MakePeImage(test::VersionResourceOf(u"Orlenta"), test::PeKind::Pe32Plus).bytes);
    const std::pair<const char*, std::string> others[] = {
        {"setup.exe", ProgramOf(u"Northlight")}, {"near.exe", ProgramOf(u"Orlenta Ltd")},
        {"case.exe", ProgramOf(u"orlenta")},     {"text.exe", "Orlenta"},
        {"old.dll", project_.runtime},           {"tools/old.exe", project_.runtime}};
    for (const auto& [name, bytes] : others) {
        PutOnDisc(name, bytes);
    }
    project_.folder.Write("work/old.exe", project_.runtime);
#ifndef _WIN32
    PutOnDisc("AUTORUN.INF", "[Autorun]\r\nOpen=old.exe\r\n");
    PutOnDisc("autorun.arn", "older");
    PutOnDisc(".tavmoor-killed", "left");
    project_.folder.Write("work/tavmoor-work-01234567/autorun.arn", "left");
#endif
    EXPECT_EQ(Build(), "built");
    EXPECT_EQ(OnDisc(), "Autorun.arn Autorun.ico Autorun.inf case.exe near.exe old.dll setup.exe "
                        "start.exe text.exe tools");
    for (const auto& [name, bytes] : others) {
        EXPECT_EQ(Disc(name), bytes);
    }
    EXPECT_EQ(AtWork(), "old.exe") << "nothing else in the compress folder is touched";
}

TEST_F(BuildDriverTest, AProgramOfSomebodyElseIsReplacedOnlyWhenToldSo) {
    const std::string foreign = ProgramOf(u"Northlight");
    PutOnDisc("start.exe", foreign);
    const std::string problem =
        "start.exe exists in CD-ROM files folder and was not made by this program.";
    EXPECT_EQ(Build(), problem);
    EXPECT_EQ(Log(), "ask " + problem + " Replace it?\n");
    EXPECT_EQ(outcome_.declined, BuildQuestion::ReplaceForeignProgram);
    EXPECT_EQ(OnDisc(), "start.exe");
    EXPECT_EQ(Disc("start.exe"), foreign);
    events_.saysYes = true;
    EXPECT_EQ(Build(), "built");
    EXPECT_EQ(Disc("start.exe"), project_.runtime);
}

TEST_F(BuildDriverTest, InputsThatLieWhereOutputGoesEndTheBuild) {
    const std::string disc = project_.folder.Document("disc");
    const std::string uses = "The project uses ";
    const std::string ending = ", which a build would replace or delete. Keep it in another place.";
    PutOnDisc("Autorun.inf", "a background, really");
    for (const std::string& spelling :
         {disc + "\\Autorun.inf", disc + "\\.\\autorun.INF", disc + "\\..\\disc\\\\Autorun.inf"}) {
        document_.OsnovnaPodesavanja.PozadinskaSlika = spelling;
        EXPECT_EQ(Build(), uses + Short(spelling) + ending);
    }
#ifndef _WIN32
    fs::create_symlink(project_.folder.Native("disc/Autorun.inf"),
                       project_.folder.Native("art/link.bmp"));
    document_.OsnovnaPodesavanja.PozadinskaSlika = project_.folder.Document("art/link.bmp");
    EXPECT_EQ(Build(), uses + "~\\art\\link.bmp" + ending);
#endif
    EXPECT_EQ(Disc("Autorun.inf"), "a background, really");

    fs::remove(project_.folder.Native("disc/Autorun.inf"));
    fs::create_directories(project_.folder.Native("disc/Autorun.arn"));
    EXPECT_EQ(Build(),
              "Autorun.arn in the CD-ROM files folder is a folder. Its place is needed for "
              "a file of the autorun.");
    request_.buildFolder = project_.folder.Document("work/..") + "\\.\\DISC";
    EXPECT_EQ(Build(), "The temporary compress folder is the CD-ROM files folder itself. Choose "
                       "another one in the program settings.");
}

TEST_F(BuildDriverTest, AnIconInItsPlaceStays) {
    const std::string disc = project_.folder.Document("disc");
    PutOnDisc("Autorun.ico", "the author's own");
    for (const std::string& spelling :
         {disc + "\\Autorun.ico", disc + "\\autorun.ICO", disc + "\\.\\Autorun.ico",
          disc + "\\\\Autorun.ico", disc + "\\..\\disc\\Autorun.ico"}) {
        document_.OsnovniPodaci.Ikona = spelling;
        EXPECT_EQ(Build(), "built") << spelling;
        EXPECT_EQ(Disc("Autorun.ico"), "the author's own");
        EXPECT_EQ(Disc("Autorun.inf"), "[Autorun]\r\nOpen=start.exe\r\nIcon=Autorun.ico\r\n");
    }
}

TEST_F(BuildDriverTest, OnlyAWholeDiscIsBuilt) {
    PutOnDisc("Autorun.arn", "older");
    const std::string descriptor = document_.OsnovnaPodesavanja.Sablon;
    const auto refused = [this](const std::string& text) {
        EXPECT_EQ(Build(), text);
        EXPECT_EQ(OnDisc() + AtWork(), "Autorun.arn");
    };
    document_.OsnovnaPodesavanja.Sablon = "";
    refused("The project has no template.");
    document_.OsnovnaPodesavanja.Sablon = project_.folder.Document("gone/Blue.tavt");
    refused("The template cannot be read: Run-time error '53': File not found: ~\\gone\\Blue.tavt");
    document_.OsnovnaPodesavanja.Sablon = descriptor;
    for (const std::string& program :
         {std::string(), std::string("no program"), ProgramOf(u"Northlight")}) {
        project_.folder.Write("template/template.tavexe", program);
        refused("The template's program ~\\template\\template.tavexe is " +
                std::string(program.empty() ? "missing or empty." : "no autorun program."));
    }
    project_.folder.Write("template/template.tavexe", project_.runtime);
    request_.name = "con";
    refused("Windows does not allow a program with the name con.exe.");
    request_.name = "start";
#ifndef _WIN32
    document_.Zvuk.Fajl = project_.folder.Write("nul.wav", "sound");
    refused("The file ~\\nul.wav cannot be packed: its name is one that Windows does not allow.");
#endif
}

#ifndef _WIN32

TEST_F(BuildDriverTest, OneBuildAtATimeWorksInADiscFolder) {
    const int folder = open(project_.folder.Native("disc").c_str(), O_RDONLY | O_DIRECTORY);
    ASSERT_EQ(flock(folder, LOCK_EX | LOCK_NB), 0);
    const std::string text = Build();
    EXPECT_TRUE(text.starts_with("The autorun in ~\\disc is being built by disc_tests (process " +
                                 std::to_string(getpid()) + ")"))
        << text;
    close(folder);
    EXPECT_EQ(Build(), "built");
}

TEST_F(BuildDriverTest, LinksAreReplacedAndNotFollowed) {
    project_.folder.Write("theirs", "not to be touched");
    for (const char* name : {"start.exe", "Autorun.arn", "Autorun.inf", "Autorun.ico"}) {
        fs::create_symlink(project_.folder.Native("theirs"), project_.folder.Native("disc") / name);
    }
    events_.saysYes = true;
    EXPECT_EQ(Build(), "built");
    EXPECT_EQ(project_.folder.Read("theirs"), "not to be touched");
    EXPECT_EQ(Disc("start.exe"), project_.runtime);
}

TEST_F(BuildDriverTest, AFailureAtTheFirstRenameLeavesTheOldDisc) {
    EXPECT_EQ(Build(), "built");
    const std::string old = Disc("Autorun.arn");
    events_.onLine = [this](const std::string& line) {
        // A folder that cannot be renamed over comes in between.
        if (fs::is_regular_file(project_.folder.Native("disc/start.exe"))) {
            fs::remove(project_.folder.Native("disc/start.exe"));
            fs::create_directories(project_.folder.Native("disc/start.exe/full"));
        }
        return line;
    };
    EXPECT_TRUE(Build().starts_with("The autorun could not be placed: "));
    EXPECT_EQ(outcome_.end, BuildEnd::Refused);
    EXPECT_EQ(Disc("Autorun.arn"), old);
    EXPECT_EQ(OnDisc(), "Autorun.arn Autorun.ico Autorun.inf start.exe") << "nothing is left over";
}

TEST_F(BuildDriverTest, AFailureMidwayTellsWhatIsNew) {
    events_.onLine = [this](const std::string& line) {
        if (line.starts_with("packed")) {
            fs::create_directories(project_.folder.Native("disc/Autorun.inf/full"));
        }
        return line;
    };
    EXPECT_TRUE(Build().ends_with("|These files are new: start.exe, Autorun.arn, Autorun.ico. "
                                  "Build again to place the others."));
    EXPECT_EQ(outcome_.end, BuildEnd::PartlyPlaced);
    EXPECT_EQ(outcome_.placed.size(), 3U);
    fs::remove_all(project_.folder.Native("disc/Autorun.inf"));
    events_.onLine = [](std::string line) { return line; };
    EXPECT_EQ(Build(), "built") << "building again mends it";
}

#endif

TEST_F(BuildDriverTest, WhatNoPackageCanHoldIsARunTimeError) {
    document_.OsnovniPodaci.Ikona = "";
    project_.AddFilms(17);
    document_.Fontovi[0] = project_.folder.Write("serif.ttf", "font");
    document_.Fontovi[1] = document_.OsnovnaPodesavanja.PozadinskaSlika;
    EXPECT_EQ(Build(), "built");
    EXPECT_EQ(document_.Working.listafajlova.size(), 20U);
    const std::string old = Disc("Autorun.arn");
    project_.AddFilms(18);
    EXPECT_EQ(Build(), "Run-time error '9': Subscript out of range: ~\\serif.ttf");
    document_.Video[1].VideoFajl = "";
    document_.OsnovniPodaci.Logoslika = project_.folder.Document() + "\\caf\xE9.gif";
    std::ofstream(NativePath(document_.OsnovniPodaci.Logoslika)) << "logo";
    EXPECT_EQ(Build(), "The file ~\\caf\xE9.gif cannot be packed: its name has characters that are "
                       "not in English.");
    EXPECT_EQ(Disc("Autorun.arn"), old);
    EXPECT_EQ(AtWork(), "");
}

TEST_F(BuildDriverTest, WorksOnlyInAFolderOfTheUsersOwn) {
    const std::string start = "The temporary compress folder cannot be used. Choose another one in "
                              "the program settings.|Run-time error ";
    request_.buildFolder = project_.folder.Document("gone");
    EXPECT_EQ(Build(), start + "'76': Path not found: ~\\gone");
#ifndef _WIN32
    const std::string denied = start + "'70': Permission denied: ~\\";
    project_.folder.Write("theirs/autorun.arn", "somebody's");
    fs::create_directory_symlink(project_.folder.Native("theirs"), project_.folder.Native("link"));
    request_.buildFolder = project_.folder.Document("link");
    EXPECT_EQ(Build(), denied + "link");
    request_.buildFolder = project_.folder.Document("theirs");
    fs::permissions(project_.folder.Native("theirs"), fs::perms::all);
    EXPECT_EQ(Build(), denied + "theirs");
    if (geteuid() == 0) {
        fs::permissions(project_.folder.Native("theirs"), fs::perms::owner_all);
        ASSERT_EQ(chown(project_.folder.Native("theirs").c_str(), 12345, 12345), 0);
        EXPECT_EQ(Build(), denied + "theirs");
    }
    EXPECT_EQ(Listing(project_.folder.Native("theirs")), "autorun.arn");
#endif
    EXPECT_EQ(OnDisc(), "");
}

} // namespace tavmoor

#include "disc/build_driver.h"

#include "core/document/field_writer.h"
#include "core/files/profile_file.h"
#include "core/files/runtime_error.h"
#include "package/package_reader.h"
#include "support/build_project.h"
#include "support/recording_build_events.h"

#include <gtest/gtest.h>

#ifndef _WIN32
#include <unistd.h>
#endif

namespace tavmoor {

namespace {

namespace fs = std::filesystem;
using test::Listing;
using test::ProgramOf;

class BuildDriverTest : public testing::Test {
protected:
    /// How the build ends: "built", "refused" or the text of a run-time error.
    std::string Build() {
        events_.log.clear();
        try {
            const BuildOutcome outcome = BuildAutorun(document_, request_, events_);
            return outcome == BuildOutcome::Built ? "built" : "refused";
        } catch (const RuntimeError& error) {
            return Short(error.what());
        }
    }

    /// A text in which "~" stands for the folder of the project.
    [[nodiscard]] std::string Short(std::string text) const {
        const std::string folder = project_.folder.Document();
        for (auto at = text.find(folder); at != std::string::npos; at = text.find(folder)) {
            text.replace(at, folder.size(), "~");
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
};

} // namespace

TEST_F(BuildDriverTest, TellsAndDoesEachStepInOrder) {
    for (const char* name : {"Autorun.arn", "Autorun.ico", "Autorun.inf"}) {
        PutOnDisc(name, "older");
    }
    events_.onLine = [this](const std::string& line) {
        const bool packed = line.starts_with("status The autorun");
        return line + (packed ? " (" + AtWork() + ")" : "") +
               (line == "wait 100" ? " (" + OnDisc() + ")" : "");
    };
    request_.startAfterBuild = true;
    EXPECT_EQ(Build(), "built");
    const std::size_t size = FieldFileText(document_, FieldFile::Configuration).size();
    const auto packed = [size](std::size_t done) {
        return "packed " + std::to_string(size + done) + "/" + std::to_string(size + 14);
    };
    EXPECT_EQ(Log(), "colour 16777215\ndisable\n"
                     "status Checking files...\nevents\nwait 300\n"
                     "check ~\\work\\tavmoor.cfg\ncheck ~\\art\\back.bmp\ncheck ~\\art\\blue.ico\n"
                     "status Processing package files...\nevents\nwait 300\n"
                     "pack ~\\work\\tavmoor.cfg\n" +
                         packed(0) + "\nevents\npack ~\\art\\back.bmp\n" + packed(10) +
                         "\nevents\npack ~\\art\\blue.ico\n" + packed(14) +
                         "\nevents\n"
                         "status The autorun program has been created! (autorun.arn start.exe)\n"
                         "events\nwait 100 ()\nwait 100 (start.exe)\n"
                         "wait 100 (Autorun.arn start.exe)\n"
                         "wait 100 (Autorun.arn Autorun.ico start.exe)\nevents\n"
                         "wait 100 (Autorun.arn Autorun.ico Autorun.inf start.exe)\n"
                         "status Starting autorun...\nevents\nstart ~\\disc\\start.exe\n"
                         "status Completed...\nevents\nenable\n");
    EXPECT_EQ(AtWork(), "");
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
    PackageFile package(project_.folder.Native("disc/Autorun.arn"));
    const auto& entries = package.Entries();
    ASSERT_EQ(entries.size(), 3U);
    const ProfileFile configuration(package.Read(entries[0]));
    EXPECT_EQ(configuration.Value("Uvod", "Vreme"), "5");
    EXPECT_EQ(configuration.Value("Izlaz", "Vreme"), "5");
    EXPECT_EQ(document_.Uvod.Vreme + document_.Izlaz.Vreme, "55") << "the project keeps them";
    EXPECT_EQ(entries[1].name + "=" + package.Read(entries[1]), "back.bmp=background");
    EXPECT_EQ(entries[2].name + "=" + package.Read(entries[2]), "blue.ico=icon");

    document_.OsnovniPodaci.Ikona = project_.folder.Document("disc") + "\\autorun.ICO";
    EXPECT_EQ(Build(), "built");
    EXPECT_EQ(Disc("Autorun.ico"), "icon") << "an icon in its own place is not deleted first";
    document_.OsnovniPodaci.Ikona = "";
    EXPECT_EQ(Build(), "built");
    EXPECT_EQ(OnDisc(), "Autorun.arn Autorun.inf start.exe") << "the old icon goes";
    EXPECT_EQ(Disc("Autorun.inf"), "[Autorun]\r\nOpen=start.exe\r\nIcon=start.exe\r\n");
}

TEST_F(BuildDriverTest, ARefusedBuildTouchesNoFile) {
    const std::string badName =
        "colour 65535\n"
        "message [] It is highly recomended that filename contains of following characters\r\n"
        "1234567890qwertyuiopasdfghjklzxcvbnmQWERTYUIOPASDFGHJKLZXCVBNM\r\n"
        R"(Make sure filename does not contain spaces or characters such as |\''?*<':>+[]/)"
        "\r\n\r\nYou want to be sure that your program will work on any computer running Windows "
        "operating system.\nname ";
    const std::array<std::string, 3> cases[] = {
        {"", "gone",
         "mark folder\ncritical [Error...] ~\\gone does not exist!\r\n"
         "You have to select CD-ROM files folder on your local disk.\n"},
        {"my  app", "disc", badName + "my__app\n"},
        {" a.b", "disc", badName + "_a.b\n"},
        {"caf\xE9", "disc", badName + "caf\xE9\n"},
        {"", "disc", "colour 65535\nmessage [] Filename cannot be blank!\n"},
    };
    PutOnDisc("Autorun.arn", "older");
    project_.folder.Write("work/autorun.arn", "older");
    document_.Uvod.Vreme = "";
    for (const auto& [name, folder, log] : cases) {
        document_.OsnovnaPodesavanja.GlavniDirektorijum = project_.folder.Document(folder);
        request_.name = name;
        EXPECT_EQ(Build(), "refused");
        EXPECT_EQ(Log(), log);
    }
    EXPECT_EQ(OnDisc() + " " + AtWork(), "Autorun.arn autorun.arn");
    EXPECT_EQ(document_.OsnovniPodaci.exename + document_.Uvod.Vreme, "");
}

TEST_F(BuildDriverTest, AnUnreadableFileAbortsTheBuild) {
    PutOnDisc("Autorun.arn", "older");
    document_.Zvuk.Fajl = project_.folder.Document("gone.wav");
    EXPECT_EQ(Build(), "refused");
    EXPECT_TRUE(Log().ends_with("check ~\\gone.wav\nmessage [Error in file] There was an error "
                                "accessing file ~\\gone.wav\r\nCheck if the file exist!\n"
                                "status Aborted\r\nThere was an error while accessing file "
                                "~\\gone.wav. Check if file exist!\nevents\nenable\n"))
        << Log();
    EXPECT_EQ(OnDisc() + " " + AtWork(), "Autorun.arn tavmoor.cfg");

    document_.Zvuk.Fajl = "";
    document_.Fontovi[0] = project_.folder.Document("gone.ttf");
    EXPECT_EQ(Build(), "Run-time error '53': File not found: ~\\gone.ttf") << "not checked before";
}

TEST_F(BuildDriverTest, OnlyProgramsOfThisMakerAreDeleted) {
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
    project_.folder.Write("work/mine.exe", "notes");
    EXPECT_EQ(Build(), "built");
    EXPECT_EQ(OnDisc(), "Autorun.arn Autorun.ico Autorun.inf case.exe near.exe old.dll setup.exe "
                        "start.exe text.exe tools");
    for (const auto& [name, bytes] : others) {
        EXPECT_EQ(Disc(name), bytes);
    }
    EXPECT_EQ(AtWork(), "mine.exe");
}

TEST_F(BuildDriverTest, AProgramThatStaysIsOverwrittenByTheAutorunOfItsName) {
    PutOnDisc("start.exe", ProgramOf(u"Northlight"));
    EXPECT_EQ(Build(), "built");
    EXPECT_EQ(Disc("start.exe"), project_.runtime);
    EXPECT_EQ(AtWork(), "") << "what could not be moved is deleted";
}

TEST_F(BuildDriverTest, WithoutTheTemplatesProgramTheRestIsPlaced) {
    for (const std::string& descriptor :
         {project_.folder.Document("gone/Blue.tavt"), std::string()}) {
        document_.OsnovnaPodesavanja.Sablon = descriptor;
        PutOnDisc("old.exe", project_.runtime);
        EXPECT_EQ(Build(), "built");
        EXPECT_EQ(OnDisc(), "Autorun.arn Autorun.ico Autorun.inf");
        EXPECT_EQ(Disc("Autorun.inf"), "[Autorun]\r\nOpen=start.exe\r\nIcon=Autorun.ico\r\n");
    }
}

TEST_F(BuildDriverTest, OnlyTheProgramIsPlacedASecondTime) {
    events_.onLine = [this](std::string line) {
        if (line == "wait 100" && OnDisc().ends_with("Autorun.inf start.exe")) {
            fs::remove(project_.folder.Native("disc/start.exe"));
            fs::remove(project_.folder.Native("disc/Autorun.arn"));
        }
        return line;
    };
    EXPECT_EQ(Build(), "built");
    EXPECT_EQ(OnDisc(), "Autorun.ico Autorun.inf start.exe");
    EXPECT_EQ(Disc("start.exe"), project_.runtime);
}

TEST_F(BuildDriverTest, WhatNoPackageCanHoldIsARunTimeError) {
    document_.OsnovniPodaci.Ikona = "";
    project_.AddFilms(17);
    document_.Fontovi[0] = project_.folder.Write("serif.ttf", "font");
    document_.Fontovi[1] = document_.OsnovnaPodesavanja.PozadinskaSlika;
    EXPECT_EQ(Build(), "built");
    EXPECT_EQ(document_.Working.listafajlova.size(), 20U);
    PutOnDisc("start.exe", "an earlier build");
    project_.AddFilms(18);
    EXPECT_EQ(Build(), "Run-time error '9': Subscript out of range: ~\\serif.ttf");
    document_.Video[1].VideoFajl = "";
    document_.OsnovniPodaci.Logoslika = project_.folder.Document() + "\\caf\xE9.gif";
    std::ofstream(NativePath(document_.OsnovniPodaci.Logoslika)) << "logo";
    EXPECT_EQ(Build(), "Run-time error '5': Invalid procedure call or argument: caf\xE9.gif");
    EXPECT_EQ(Disc("start.exe"), "an earlier build");
}

TEST_F(BuildDriverTest, WorksOnlyInAFolderOfTheUsersOwn) {
    request_.buildFolder = project_.folder.Document("gone");
    EXPECT_EQ(Build(), "Run-time error '76': Path not found: ~\\gone\\");
#ifndef _WIN32
    const std::string denied = "Run-time error '70': Permission denied: ~\\";
    project_.folder.Write("theirs/autorun.arn", "somebody's");
    fs::create_directory_symlink(project_.folder.Native("theirs"), project_.folder.Native("link"));
    request_.buildFolder = project_.folder.Document("link");
    EXPECT_EQ(Build(), denied + "link\\");
    request_.buildFolder = project_.folder.Document("theirs");
    fs::permissions(project_.folder.Native("theirs"), fs::perms::all);
    EXPECT_EQ(Build(), denied + "theirs\\");
    if (geteuid() == 0) {
        fs::permissions(project_.folder.Native("theirs"), fs::perms::owner_all);
        ASSERT_EQ(chown(project_.folder.Native("theirs").c_str(), 12345, 12345), 0);
        EXPECT_EQ(Build(), denied + "theirs\\");
    }
    EXPECT_EQ(Listing(project_.folder.Native("theirs")), "autorun.arn");
#endif
    EXPECT_EQ(OnDisc(), "");
}

} // namespace tavmoor

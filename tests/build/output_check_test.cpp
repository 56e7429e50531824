#include "build/output_check.h"

#include "build/build_driver.h"
#include "support/build_project.h"
#include "support/package_bytes.h"

#include <gtest/gtest.h>

namespace tavmoor {

namespace {

using Faults = std::vector<std::string>;
using test::PackedFile;

class OutputCheckTest : public testing::Test {
protected:
    void SetUp() override {
        class Silent final : public BuildEvents {
        } silent;
        const BuildRequest request{"start", project_.folder.Document("work"), false};
        ASSERT_EQ(BuildAutorun(document_, request, silent), BuildOutcome::Built);
        const std::string package = project_.folder.Read("disc/Autorun.arn");
        configuration_ = package.substr(package.find("[Osnovna podesavanja]"));
        configuration_.resize(configuration_.size() - std::string("backgroundicon").size());
    }

    /// Changes a file of the disc, or removes it, and tells what the check says then.
    Faults FaultsWith(const std::string& name, const char* bytes) {
        const std::string kept = project_.folder.Read("disc/" + name);
        std::filesystem::remove(project_.folder.Native("disc/" + name));
        if (bytes != nullptr) {
            project_.folder.Write("disc/" + name, bytes);
        }
        Faults faults = FaultsOfPlacedOutput(document_);
        project_.folder.Write("disc/" + name, kept);
        return faults;
    }

    Faults FaultsWithPackage(const std::vector<PackedFile>& files) {
        project_.folder.Write("disc/Autorun.arn", PackageBytes(files));
        return FaultsOfPlacedOutput(document_);
    }

    [[nodiscard]] std::string Disc(const std::string& name) const {
        return project_.folder.Document("disc") + "\\" + name;
    }

    test::BuildProject project_;
    ProjectDocument& document_ = *project_.document;
    std::string configuration_;
};

} // namespace

TEST_F(OutputCheckTest, TellsWhichFileIsNotAsBuilt) {
    EXPECT_EQ(FaultsOfPlacedOutput(document_), Faults{});
    const std::string program = "the template's program " + document_.Working.TemplateRuntimePath;
    const std::string icon = "the icon " + document_.OsnovniPodaci.Ikona;
    EXPECT_EQ(FaultsWith("start.exe", nullptr), Faults{Disc("start.exe was not placed.")});
    EXPECT_EQ(FaultsWith("start.exe", "MZ"),
              Faults{Disc("start.exe differs from " + program + ".")});
    EXPECT_EQ(FaultsWith("Autorun.ico", nullptr), Faults{Disc("Autorun.ico was not placed.")});
    EXPECT_EQ(FaultsWith("Autorun.ico", "ico"),
              Faults{Disc("Autorun.ico differs from " + icon + ".")});
    EXPECT_EQ(FaultsWith("Autorun.inf", nullptr), Faults{Disc("Autorun.inf was not placed.")});
    EXPECT_EQ(FaultsWith("Autorun.inf", "[Autorun]\r\nOpen=old.exe\r\n"),
              Faults{Disc("Autorun.inf differs from what was written.")});
    EXPECT_EQ(FaultsWith("Autorun.arn", nullptr).size(), 1U);
    EXPECT_EQ(FaultsWith("Autorun.arn", "").size(), 1U);
    EXPECT_EQ(FaultsOfPlacedOutput(document_), Faults{});

    std::filesystem::remove(project_.folder.Native("template/template.tavexe"));
    EXPECT_EQ(FaultsOfPlacedOutput(document_), Faults{program + " is missing."});
    document_.OsnovniPodaci.Ikona = "";
    EXPECT_EQ(FaultsOfPlacedOutput(document_).size(), 4U) << "icon left, inf, package and program";
}

TEST_F(OutputCheckTest, LooksIntoThePackage) {
    const PackedFile first{"tavmoor.cfg", configuration_};
    const PackedFile back{"back.bmp", "background"};
    const PackedFile icon{"blue.ico", "icon"};
    EXPECT_EQ(FaultsWithPackage({first, back, icon}), Faults{});
    const std::string files = Disc("Autorun.arn does not hold the project's files.");
    EXPECT_EQ(FaultsWithPackage({first, icon, back}), Faults{files});
    EXPECT_EQ(FaultsWithPackage({first, back}), Faults{files});
    EXPECT_EQ(FaultsWithPackage({}), Faults{files});
    EXPECT_EQ(FaultsWithPackage({first, {"back.bmp", "short"}, icon}), Faults{files});
    std::string older = configuration_;
    older[older.find("Holiday")] = 'X';
    EXPECT_EQ(FaultsWithPackage({{"tavmoor.cfg", older}, back, icon}),
              Faults{Disc("Autorun.arn does not hold the project's configuration.")});
}

TEST_F(OutputCheckTest, FindsAnOlderPackageWhosePictureHasAnotherContent) {
    EXPECT_EQ(
        FaultsWithPackage(
            {{"tavmoor.cfg", configuration_}, {"back.bmp", "BACKGROUND"}, {"blue.ico", "icon"}})
            .size(),
        1U);
}

TEST_F(OutputCheckTest, FindsAnOlderAutorunThatCouldNotBeDeleted) {
    project_.folder.Write("disc/old.exe", project_.runtime);
    project_.folder.Write("disc/setup.exe", test::ProgramOf(u"Northlight"));
    EXPECT_EQ(FaultsOfPlacedOutput(document_).size(), 1U);
}

} // namespace tavmoor

#include "build/output_check.h"

#include "build/build_driver.h"
#include "support/build_project.h"
#include "support/package_bytes.h"

#include <gtest/gtest.h>

namespace tavmoor {

namespace {

using test::PackedFile;

class OutputCheckTest : public testing::Test {
protected:
    void SetUp() override {
        class Silent final : public BuildEvents {
        } silent;
        const BuildRequest request{"start", project_.folder.Document("work"), false};
        ASSERT_EQ(BuildAutorun(document_, request, silent), BuildOutcome::Built);
        const std::string package = project_.folder.Read("disc/Autorun.arn");
        const std::size_t start = package.find("[Osnovna podesavanja]");
        configuration_ = package.substr(start, package.rfind("backgroundicon") - start);
    }

    /// The faults found, each with a line end.
    [[nodiscard]] std::string Faults() const {
        std::string faults;
        for (const std::string& fault : FaultsOfPlacedOutput(document_)) {
            faults += fault + "\n";
        }
        return faults;
    }
    /// The same after a file of the disc was changed, or removed for nullptr.
    [[nodiscard]] std::string FaultsWith(const std::string& name, const char* bytes) const {
        const std::string kept = project_.folder.Read("disc/" + name);
        std::filesystem::remove(project_.folder.Native("disc/" + name));
        if (bytes != nullptr) {
            project_.folder.Write("disc/" + name, bytes);
        }
        std::string faults = Faults();
        project_.folder.Write("disc/" + name, kept);
        return faults;
    }
    [[nodiscard]] std::string FaultsWith(const std::vector<PackedFile>& files) const {
        project_.folder.Write("disc/Autorun.arn", PackageBytes(files));
        return Faults();
    }

    test::BuildProject project_;
    ProjectDocument& document_ = *project_.document;
    std::string configuration_;
};

} // namespace

TEST_F(OutputCheckTest, TellsWhichFileIsNotAsBuilt) {
    const std::string program = "the template's program " + document_.Working.TemplateRuntimePath;
    const std::string disc = project_.folder.Document("disc") + "\\";
    const std::string differs[][2] = {{"start.exe", program},
                                      {"Autorun.ico", "the icon " + document_.OsnovniPodaci.Ikona},
                                      {"Autorun.inf", "what was written"}};
    for (const auto& [name, origin] : differs) {
        EXPECT_EQ(FaultsWith(name, nullptr), disc + name + " was not placed.\n");
        EXPECT_EQ(FaultsWith(name, "MZ"), disc + name + " differs from " + origin + ".\n");
    }
    EXPECT_TRUE(FaultsWith("Autorun.arn", nullptr).starts_with(disc + "Autorun.arn is damaged: "));
    EXPECT_TRUE(FaultsWith("Autorun.arn", "").starts_with(disc + "Autorun.arn is damaged: "));
    EXPECT_EQ(Faults(), "");
    std::filesystem::remove(project_.folder.Native("template/template.tavexe"));
    EXPECT_EQ(Faults(), program + " is missing.\n");
    document_.OsnovniPodaci.Ikona = "";
    EXPECT_NE(Faults().find(disc + "Autorun.ico of an earlier build is still there.\n"),
              std::string::npos);
}

TEST_F(OutputCheckTest, LooksIntoThePackage) {
    const PackedFile first{"tavmoor.cfg", configuration_};
    const PackedFile back{"back.bmp", "background"};
    const PackedFile icon{"blue.ico", "icon"};
    EXPECT_EQ(FaultsWith({first, back, icon}), "");
    const std::string package = project_.folder.Document("disc") + "\\Autorun.arn does not hold ";
    const std::vector<PackedFile> others[] = {
        {first, icon, back}, {first, back}, {}, {first, {"back.bmp", "short"}, icon}};
    for (const auto& files : others) {
        EXPECT_EQ(FaultsWith(files), package + "the project's files.\n");
    }
    std::string older = configuration_;
    older[older.find("Holiday")] = 'X';
    EXPECT_EQ(FaultsWith({{"tavmoor.cfg", older}, back, icon}),
              package + "the project's configuration.\n");
}

TEST_F(OutputCheckTest, FindsWhatAnEarlierBuildLeft) {
    EXPECT_NE(FaultsWith({{"tavmoor.cfg", configuration_},
                          {"back.bmp", "BACKGROUND"},
                          {"blue.ico", "icon"}}),
              "")
        << "a picture of the same size and another content";
    SetUp();
    project_.folder.Write("disc/setup.exe", test::ProgramOf(u"Northlight"));
    EXPECT_EQ(Faults(), "");
    project_.folder.Write("disc/old.exe", project_.runtime);
    EXPECT_NE(Faults(), "") << "a second autorun program";
}

} // namespace tavmoor

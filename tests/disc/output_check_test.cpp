#include "disc/output_check.h"

#include "disc/build_driver.h"
#include "support/build_project.h"
#include "support/recording_build_events.h"

#include <gtest/gtest.h>

namespace tavmoor {

namespace {

class OutputCheckTest : public testing::Test {
protected:
    OutputCheckTest() { Build(); }

    void Build() {
        const BuildRequest request{"start", folder_.Document("work"), false};
        EXPECT_EQ(BuildAutorun(document_, request, events_), BuildOutcome::Built);
    }
    /// The faults found, each with a line end, and the disc's folder as "~".
    [[nodiscard]] std::string Faults() const {
        std::string faults;
        for (std::string fault : FaultsOfPlacedOutput(document_, events_.package)) {
            const std::string disc = folder_.Document("disc");
            if (const auto at = fault.find(disc); at != std::string::npos) {
                fault.replace(at, disc.size(), "~");
            }
            faults += fault + "\n";
        }
        return faults;
    }
    /// The same after a file of the disc was replaced, or removed for nullptr.
    [[nodiscard]] std::string FaultsWith(const std::string& name, const char* bytes) const {
        const std::string kept = folder_.Read("disc/" + name);
        std::filesystem::remove(folder_.Native("disc/" + name));
        if (bytes != nullptr) {
            folder_.Write("disc/" + name, bytes);
        }
        std::string faults = Faults();
        folder_.Write("disc/" + name, kept);
        return faults;
    }

    test::BuildProject project_;
    const test::TemporaryFolder& folder_ = project_.folder;
    ProjectDocument& document_ = *project_.document;
    test::RecordingBuildEvents events_;
};

} // namespace

TEST_F(OutputCheckTest, TellsWhichFileIsNotAsBuilt) {
    const std::string program = "the template's program " + document_.Working.TemplateRuntimePath;
    const std::string origins[][2] = {{"start.exe", program},
                                      {"Autorun.ico", "the icon " + document_.OsnovniPodaci.Ikona},
                                      {"Autorun.inf", "what was written"}};
    for (const auto& [name, origin] : origins) {
        EXPECT_EQ(FaultsWith(name, nullptr), "~\\" + name + " was not placed.\n");
        EXPECT_EQ(FaultsWith(name, "MZ"), "~\\" + name + " differs from " + origin + ".\n");
    }
    EXPECT_EQ(Faults(), "");
    std::filesystem::remove(folder_.Native("template/template.tavexe"));
    EXPECT_EQ(Faults(), program + " is missing.\n");
}

TEST_F(OutputCheckTest, TellsAnyOtherPackage) {
    const std::string other = "~\\Autorun.arn is not the package that was built.\n";
    EXPECT_EQ(FaultsWith("Autorun.arn", nullptr), other);
    const std::string first = folder_.Read("disc/Autorun.arn");
    EXPECT_EQ(FaultsWith("Autorun.arn", first.substr(0, first.size() - 1).c_str()), other);
    folder_.Write("art/back.bmp", "BACKGROUND");
    Build();
    EXPECT_EQ(FaultsWith("Autorun.arn", first.c_str()), other) << "names and sizes are the same";
    EXPECT_EQ(Faults(), "");
    document_.OsnovniPodaci.Tasknaslov = "changed meanwhile";
    EXPECT_EQ(Faults(), "~\\Autorun.arn does not hold the project's configuration.\n");
}

TEST_F(OutputCheckTest, TellsWhatAnEarlierBuildLeft) {
    folder_.Write("disc/setup.exe", test::ProgramOf(u"Northlight"));
    folder_.Write("disc/old.exe", project_.runtime);
    EXPECT_EQ(Faults(), "The older autorun program ~\\old.exe could not be deleted.\n");
    document_.OsnovniPodaci.Ikona = "";
    Build();
    folder_.Write("disc/Autorun.ico", "older");
    EXPECT_EQ(Faults(), "~\\Autorun.ico of an earlier build is still there.\n");
}

} // namespace tavmoor

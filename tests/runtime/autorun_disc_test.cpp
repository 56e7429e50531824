#include "menu/autorun_disc.h"

#include "support/package_bytes.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace tavmoor {

namespace {

const test::PackedFile Configuration("tavmoor.cfg", "[Osnovni podaci]\r\nTasknaslov=Disc\r\n");

/// What the user is told about a package; "" when it opens.
std::string Complaint(const test::TemporaryFolder& folder) {
    try {
        const AutorunDisc disc(folder.Native());
        return "";
    } catch (const DiscError& error) {
        return error.what();
    }
}

std::string ComplaintAbout(const std::string& package) {
    const test::TemporaryFolder folder;
    folder.Write("Autorun.arn", package);
    return Complaint(folder);
}

} // namespace

TEST(AutorunDisc, OpensItsPackageInAnyLetterCase) {
    for (const char* name : {"Autorun.arn", "AUTORUN.ARN", "autorun.Arn"}) {
        const test::TemporaryFolder folder;
        folder.Write(name, test::PackageBytes({Configuration, {"Back.JPG", "picture"}}));
        AutorunDisc disc(folder.Native());
        EXPECT_EQ(disc.Document().OsnovniPodaci.Tasknaslov, "Disc");
        // What the configuration leaves out is as in a new project.
        EXPECT_EQ(disc.Document().IzvrsneKomande.Font, "Arial");
        EXPECT_EQ(disc.ReadFile("back.jpg"), "picture");
        EXPECT_EQ(disc.ReadFile("other.jpg"), std::nullopt);
        EXPECT_EQ(disc.ReadFile(""), std::nullopt);
    }
}

TEST(AutorunDisc, NamesItsFonts) {
    const test::TemporaryFolder folder;
    folder.Write(
        "Autorun.arn",
        test::PackageBytes({Configuration, {"a.TTF", "f"}, {"b.jpg", "p"}, {"c.otf", ""}}));
    EXPECT_EQ(AutorunDisc(folder.Native()).FontFiles(),
              (std::vector<std::string>{"a.TTF", "c.otf"}));
}

TEST(AutorunDisc, SaysWhatIsWrong) {
    EXPECT_EQ(Complaint(test::TemporaryFolder()),
              "The file Autorun.arn does not lie beside this program.");
    EXPECT_EQ(ComplaintAbout(test::PackageBytes({{"a.jpg", "x"}})),
              "The file Autorun.arn holds no menu.");
    EXPECT_EQ(ComplaintAbout(test::PackageBytes({{"tavmoor.cfg", "no menu"}})),
              "The menu in the file Autorun.arn is damaged.");
    const std::string whole = test::PackageBytes({Configuration, {"a.jpg", "picture"}});
    ASSERT_EQ(ComplaintAbout(whole), "");
    for (std::size_t length = 0; length < whole.size(); length += 5) {
        EXPECT_NE(ComplaintAbout(whole.substr(0, length)), "") << length;
    }
}

} // namespace tavmoor

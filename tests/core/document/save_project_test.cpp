#include "core/document/project_reset.h"
#include "core/document/project_writer.h"
#include "core/files/runtime_error.h"
#include "core/session/recovery_folder.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace tavmoor {

namespace {

using Names = std::set<std::string>;

class SaveProjectTest : public testing::Test, protected ProjectSaveDialog {
protected:
    std::string Show(std::string_view folder, std::string_view title,
                     std::string_view filter) override {
        EXPECT_EQ(title, "Save autorun project ...");
        EXPECT_EQ(filter, "Tavmoor project (.tavp)| *.tavp");
        initialFolder_ = folder;
        return current_ = answer_;
    }
    [[nodiscard]] std::string CurrentFileName() const override { return current_; }

    bool SaveAs(const std::string& answer) {
        answer_ = answer;
        return SaveProject(*document_, AskForName, "Z:\\app", *this);
    }
    bool Save() { return SaveProject(*document_, working_.ProjectPath, "Z:\\app", *this); }
    std::string Path(const std::string& name) { return folder_.Document() + "\\" + name; }

    test::TemporaryFolder folder_;
    std::unique_ptr<ProjectDocument> document_ =
        std::make_unique<ProjectDocument>(NewProjectDocument());
    WorkingValues& working_ = document_->Working;
    std::string answer_;
    std::string current_;
    std::string initialFolder_;
};

} // namespace

TEST_F(SaveProjectTest, ANameWithoutTheExtensionGetsIt) {
    ASSERT_TRUE(SaveAs(Path("disc")));
    EXPECT_EQ(initialFolder_, "Z:\\app");
    EXPECT_EQ(folder_.Read("disc.tavp"), ProjectText(*document_));
    EXPECT_EQ(working_.ProjectPath, Path("disc.tavp"));
    EXPECT_EQ(working_.Recent, Path("disc.tavp"));
    EXPECT_EQ(working_.LastProjectFolder, Path(""));
    ASSERT_TRUE(SaveAs(Path("other.tavp")));
    EXPECT_EQ(initialFolder_, Path(""));
    EXPECT_EQ(working_.ProjectPath, Path("other.tavp"));
    EXPECT_EQ(working_.Recent, Path("disc.tavp")) << "follows only a name that was completed";
    ASSERT_TRUE(SaveAs(Path("xtavp")));
    EXPECT_EQ(working_.ProjectPath, Path("xtavp.tavp")) << "shown, not written";
    EXPECT_EQ(folder_.Names(), (Names{"disc.tavp", "other.tavp", "xtavp"}));
    ASSERT_TRUE(SaveAs(Path("UP.TAVP")));
    EXPECT_TRUE(folder_.Names().contains("UP.TAVP.tavp"));
}

TEST_F(SaveProjectTest, SavingAgainAsksNothing) {
    working_.ProjectPath = folder_.Write("a.tavp", "old");
    ASSERT_TRUE(Save());
    EXPECT_EQ(folder_.Read("a.tavp"), ProjectText(*document_));
    EXPECT_EQ(working_.ProjectPath, Path("a.tavp"));
    working_.ProjectPath = Path("b.txt");
    working_.Recent = "Z:\\other";
    current_ = Path("a.tavp");
    ASSERT_TRUE(Save());
    EXPECT_EQ(folder_.Names(), (Names{"a.tavp", "b.txt.tavp"}));
    EXPECT_EQ(working_.Recent, "Z:\\other.tavp") << "each copy gets the extension";
    EXPECT_EQ(working_.ProjectPath, Path("a.tavp")) << "the dialog's last name is shown";
    EXPECT_EQ(initialFolder_, "");
}

TEST_F(SaveProjectTest, WithoutASaveNothingIsWritten) {
    working_.ProjectPath = "Z:\\p.tavp";
    working_.Recent = "Z:\\r.tavp";
    working_.LastProjectFolder = "Z:\\l";
    EXPECT_FALSE(SaveAs(""));
    EXPECT_EQ(initialFolder_, "Z:\\l");
    EXPECT_EQ(working_.ProjectPath + working_.Recent + working_.LastProjectFolder,
              "Z:\\p.tavpZ:\\r.tavpZ:\\l");
    EXPECT_THROW(SaveAs(Path("gone\\disc.tavp")), RuntimeError);
    EXPECT_TRUE(folder_.Names().empty());
}

TEST_F(SaveProjectTest, RecoveryFilesLieBesideTheProjectAndReplaceNothing) {
    working_.ProjectPath = folder_.Write("a.tavp", "saved");
    EXPECT_EQ(WriteRecoveryFile(*document_), Path("a.recovered.tavp"));
    EXPECT_EQ(WriteRecoveryFile(*document_), Path("a-2.recovered.tavp"));
    EXPECT_EQ(folder_.Read("a-2.recovered.tavp"), ProjectText(*document_));
    EXPECT_EQ(folder_.Read("a.tavp"), "saved");
#ifndef _WIN32
    setenv("XDG_DATA_HOME", folder_.Native().c_str(), 1);
    working_.ProjectPath.clear();
    EXPECT_TRUE(WriteRecoveryFile(*document_).starts_with(Path("tavmoor\\recovery\\")));
    // A save that failed has left the project a path at which nothing can be written.
    working_.ProjectPath = Path("gone\\a.tavp");
    EXPECT_TRUE(WriteRecoveryFile(*document_).ends_with(" a.tavp"));
    unsetenv("XDG_DATA_HOME");
#endif
}

} // namespace tavmoor

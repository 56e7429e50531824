#include "templates/template_catalogue.h"

#include "core/document_path.h"
#include "support/temporary_folder.h"
#include "templates/template_descriptor.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace tavmoor {

namespace {

class TemplatesTest : public testing::Test {
protected:
    std::string Add(const std::string& name, const std::string& settings) {
        return folder_.Write("Templates/" + name, settings);
    }
    std::string Named(const std::string& name) { return "[Template]\r\nName=" + name + "\r\n"; }
    TemplateCatalogue Catalogue() {
        return ReadTemplateCatalogue(TemplatesFolder(folder_.Document()));
    }

    test::TemporaryFolder folder_;
};

} // namespace

TEST_F(TemplatesTest, AreFoundAtAnyDepthFilesOfAFolderFirst) {
    EXPECT_TRUE(Catalogue().paths.empty());
    Add("a/b/c/deep.tavt", Named("Deep"));
    Add("a/one.TAVT", Named("Same"));
    Add("a/b/two.tavt", Named("Same"));
    Add("top.tavt", Named("Top"));
    Add("Advanced visual editor/Advanced visual editor.Atavt", Named("Editor"));
    Add("a/readme.txt", Named("Text"));
    Add("a/tavt", Named("No extension"));
    const TemplateCatalogue catalogue = Catalogue();
    EXPECT_EQ(catalogue.names, (std::vector<std::string>{"Top", "Same", "Same", "Deep"}));
    ASSERT_EQ(catalogue.paths.size(), 4U);
    const std::string start = TemplatesFolder(folder_.Document());
    EXPECT_EQ(start, folder_.Document() + "\\templates");
    EXPECT_EQ(catalogue.paths[0], start + "\\top.tavt");
    EXPECT_EQ(catalogue.paths[3], start + "\\a\\b\\c\\deep.tavt");
    EXPECT_EQ(TemplateDisplayName(catalogue.paths[3]), "Deep");
    EXPECT_EQ(RowOfTemplate(catalogue, folder_.Document() + "\\Templates\\A\\B\\TWO.tavt"), 2U);
    EXPECT_EQ(RowOfTemplate(catalogue, start + "\\gone.tavt"), std::nullopt);
    EXPECT_EQ(RowOfTemplate(catalogue, ""), std::nullopt);
}

TEST_F(TemplatesTest, ADescriptorWithoutANameShiftsTheRows) {
    Add("nameless.tavt", "[Template]\r\ncommand number=3\r\n");
    Add("sub/named.tavt", Named("Named"));
    const TemplateCatalogue catalogue = Catalogue();
    EXPECT_EQ(catalogue.paths.size(), 2U);
    EXPECT_EQ(catalogue.names, std::vector<std::string>{"Named"});
    const std::vector<TemplateInfo> named = NamedTemplates(catalogue);
    ASSERT_EQ(named.size(), 1U);
    EXPECT_EQ(named[0].name, "Named");
    EXPECT_EQ(named[0].descriptorPath, catalogue.paths[1]);
}

#ifndef _WIN32

TEST_F(TemplatesTest, LinksThatLeadBackEndTheSearch) {
    Add("a/one.tavt", Named("One"));
    std::filesystem::create_directory_symlink("..", folder_.Native("Templates/a/back"));
    std::filesystem::create_symlink("nowhere", folder_.Native("Templates/dangling"));
    std::filesystem::create_directory(folder_.Native("Templates/back\\slash"));
    folder_.Write("elsewhere/two.tavt", Named("Two"));
    std::filesystem::create_directory_symlink("../elsewhere", folder_.Native("Templates/link"));
    std::vector<std::string> names = Catalogue().names;
    std::sort(names.begin(), names.end());
    EXPECT_EQ(names, (std::vector<std::string>{"One", "Two"}));
}

TEST_F(TemplatesTest, ARowIsFoundInAnyCaseOfItsPath) {
    const TemplateCatalogue catalogue{{"Blue"}, {"Z:\\\xC9t\xC9\\blue.tavt"}};
    EXPECT_EQ(RowOfTemplate(catalogue, "Z:\\\xE9t\xE9\\Blue.tavt"), 0U);
}

#endif

TEST_F(TemplatesTest, SelectingBindsTheProjectAndNothingElse) {
    const auto document = std::make_unique<ProjectDocument>();
    SelectTemplate(*document, {"Blue", "Z:\\t\\Blue\\Blue.tavt"});
    EXPECT_EQ(document->OsnovnaPodesavanja.Sablon, "Z:\\t\\Blue\\Blue.tavt");
    EXPECT_EQ(document->Working.TemplateName, "Blue");
    EXPECT_EQ(document->Working.TemplateRuntimePath, "Z:\\t\\Blue\\template.tavexe");
    EXPECT_EQ(document->OsnovniPodaci.Glavninaslov, "New project...");
    document->OsnovniPodaci.Glavninaslov = "Mine";
    SelectEditorTemplate(*document, "Z:\\app");
    EXPECT_EQ(document->OsnovnaPodesavanja.Sablon,
              "Z:\\app\\Templates\\Advanced visual editor\\Advanced visual editor.Atavt");
    EXPECT_EQ(document->Working.TemplateRuntimePath,
              "Z:\\app\\Templates\\Advanced visual editor\\template.tavexe");
    EXPECT_EQ(document->Working.TemplateName, "ADVANCED VISUAL EDITOR");
    EXPECT_EQ(EditorDisplayName, "Advanced Visual editor");
    EXPECT_EQ(document->OsnovniPodaci.Glavninaslov, "Mine");
}

TEST_F(TemplatesTest, ThePreviewIsTheFirstPictureThatHoldsSomething) {
    const std::string descriptor = Add("blue/blue.tavt", "");
    const std::string folder = FolderOf(descriptor).data() == nullptr
                                   ? ""
                                   : std::string(FolderOf(descriptor)) + "\\";
    EXPECT_EQ(ShowTemplatePreview(descriptor).descriptionPath, folder + "opis.rtf");
    EXPECT_EQ(ShowTemplatePreview(descriptor).picturePath, folder + "template.gif");
    Add("blue/template.jpg", "");
    EXPECT_EQ(ShowTemplatePreview(descriptor).picturePath, folder + "template.gif");
    Add("blue/template.jpg", "x");
    EXPECT_EQ(ShowTemplatePreview(descriptor).picturePath, folder + "template.jpg");
}

TEST_F(TemplatesTest, TheEditorIsAcceptedForExactlyOne) {
    for (const char* value : {"", "0", "2", "1 ", "01", "True"}) {
        const std::string text = std::string("[Additional settings]\r\nEnable=") + value + "\r\n";
        EXPECT_FALSE(TemplateAcceptsEditor(Add("t.tavt", text))) << value;
    }
    EXPECT_TRUE(TemplateAcceptsEditor(Add("t.tavt", "[additional SETTINGS]\nenable=1")));
    EXPECT_FALSE(TemplateAcceptsEditor(Add("t.tavt", "[Template]\r\nEnable=1\r\n")));
    EXPECT_FALSE(TemplateAcceptsEditor(folder_.Document("gone.tavt")));
}

TEST_F(TemplatesTest, TheCommandLimitIsTold) {
    const auto limit = [this](const std::string& value) {
        return ReadCommandLimit(Add("t.tavt", "[Template]\r\ncommand number=" + value + "\r\n"));
    };
    EXPECT_EQ(limit("24"), 24);
    EXPECT_EQ(limit("0"), 0);
    EXPECT_EQ(limit(""), 0);
    EXPECT_EQ(limit("many"), 0);
    EXPECT_EQ(ReadCommandLimit(folder_.Document("gone.tavt")), 0);
    EXPECT_EQ(CommandLimitText(8, "Hint."),
              "The templete you selected can have up to 8 additional commands.");
    EXPECT_EQ(CommandLimitText(0, "Hint."), "The selected template can't accept additional "
                                            "commands! Try another template. Hint.");
}

} // namespace tavmoor

#include "templates/template_catalogue.h"

#include "support/temporary_folder.h"
#include "templates/template_descriptor.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace tavmoor {

namespace {

using Texts = std::vector<std::string>;

class TemplatesTest : public testing::Test {
protected:
    std::string Add(const std::string& name, const std::string& bytes) {
        return folder_.Write("Templates/" + name, bytes);
    }
    void AddNamed(const std::string& path, const std::string& name) {
        folder_.Write(path, "[Template]\r\nName=" + name + "\r\n");
    }
    TemplateCatalogue Catalogue() {
        return ReadTemplateCatalogue(TemplatesFolder(folder_.Document()));
    }

    test::TemporaryFolder folder_;
};

} // namespace

TEST_F(TemplatesTest, AreFoundAtAnyDepthFilesOfAFolderFirst) {
    EXPECT_TRUE(Catalogue().paths.empty());
    AddNamed("Templates/a/b/c/deep.tavt", "Deep");
    AddNamed("Templates/a/one.TAVT", "Same");
    AddNamed("Templates/a/b/two.tavt", "Same");
    AddNamed("Templates/top.tavt", "Top");
    AddNamed("Templates/Advanced visual editor/Advanced visual editor.Atavt", "Editor");
    AddNamed("Templates/a/tavt", "No extension");
    const TemplateCatalogue catalogue = Catalogue();
    EXPECT_EQ(catalogue.names, (Texts{"Top", "Same", "Same", "Deep"}));
    const std::string start = folder_.Document() + "\\templates";
    EXPECT_EQ(catalogue.paths, (Texts{start + "\\top.tavt", start + "\\a\\one.TAVT",
                                      start + "\\a\\b\\two.tavt", start + "\\a\\b\\c\\deep.tavt"}));
    EXPECT_EQ(RowOfTemplate(catalogue, folder_.Document() + "\\Templates\\A\\B\\TWO.tavt"), 2U);
    EXPECT_EQ(RowOfTemplate(catalogue, start + "\\gone.tavt"), std::nullopt);
    EXPECT_EQ(RowOfTemplate({{"Blue"}, {"Z:\\\xC9\\b.tavt"}}, "Z:\\\xE9\\B.tavt"), 0U);
}

TEST_F(TemplatesTest, ADescriptorWithoutANameShiftsTheRows) {
    Add("nameless.tavt", "[Template]\r\ncommand number=3\r\n");
    AddNamed("Templates/sub/named.tavt", "Named");
    const TemplateCatalogue catalogue = Catalogue();
    EXPECT_EQ(catalogue.paths.size(), 2U);
    EXPECT_EQ(catalogue.names, Texts{"Named"});
    const std::vector<TemplateInfo> named = NamedTemplates(catalogue);
    ASSERT_EQ(named.size(), 1U);
    EXPECT_EQ(named[0].name, "Named");
    EXPECT_EQ(named[0].descriptorPath, catalogue.paths[1]);
}

#ifndef _WIN32

TEST_F(TemplatesTest, LinksThatLeadBackEndTheSearch) {
    AddNamed("Templates/a/one.tavt", "One");
    AddNamed("elsewhere/two.tavt", "Two");
    std::filesystem::create_directory_symlink("..", folder_.Native("Templates/a/back"));
    std::filesystem::create_symlink("nowhere", folder_.Native("Templates/dangling"));
    std::filesystem::create_directory(folder_.Native("Templates/back\\slash"));
    std::filesystem::create_directory_symlink("../elsewhere", folder_.Native("Templates/link"));
    Texts names = Catalogue().names;
    std::sort(names.begin(), names.end());
    EXPECT_EQ(names, (Texts{"One", "Two"}));
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
    const std::string folder = "Z:\\app\\Templates\\Advanced visual editor\\";
    EXPECT_EQ(document->OsnovnaPodesavanja.Sablon, folder + "Advanced visual editor.Atavt");
    EXPECT_EQ(document->Working.TemplateRuntimePath, folder + "template.tavexe");
    EXPECT_EQ(document->Working.TemplateName, "ADVANCED VISUAL EDITOR");
    EXPECT_EQ(document->OsnovniPodaci.Glavninaslov, "Mine");
}

TEST_F(TemplatesTest, ThePreviewIsTheFirstPictureThatHoldsSomething) {
    const std::string descriptor = Add("blue/blue.tavt", "");
    const std::string folder = folder_.Document("Templates/blue") + "\\";
    EXPECT_EQ(ShowTemplatePreview(descriptor).descriptionPath, folder + "opis.rtf");
    EXPECT_EQ(ShowTemplatePreview(descriptor).picturePath, folder + "template.gif");
    Add("blue/template.jpg", "");
    EXPECT_EQ(ShowTemplatePreview(descriptor).picturePath, folder + "template.gif");
    Add("blue/template.jpg", "x");
    EXPECT_EQ(ShowTemplatePreview(descriptor).picturePath, folder + "template.jpg");
}

TEST_F(TemplatesTest, TheDescriptorTellsWhatTheTemplateCan) {
    for (const std::string value : {"", "0", "2", "1 ", "01", "True", "1"}) {
        const std::string text = "[additional SETTINGS]\r\nenable=" + value + "\r\n";
        EXPECT_EQ(TemplateAcceptsEditor(Add("t.tavt", text)), value == "1") << value;
    }
    EXPECT_FALSE(TemplateAcceptsEditor(Add("t.tavt", "[Template]\r\nEnable=1\r\n")));
    EXPECT_FALSE(TemplateAcceptsEditor(folder_.Document("gone.tavt")));
    const std::pair<const char*, int> limits[] = {{"24", 24}, {"0", 0}, {"", 0}, {"many", 0}};
    for (const auto& [value, limit] : limits) {
        const std::string text = std::string("[Template]\r\ncommand number=") + value + "\r\n";
        EXPECT_EQ(ReadCommandLimit(Add("t.tavt", text)), limit) << value;
    }
    EXPECT_EQ(ReadCommandLimit(folder_.Document("gone.tavt")), 0);
    EXPECT_EQ(CommandLimitText(8, "Hint."),
              "The templete you selected can have up to 8 additional commands.");
    EXPECT_EQ(CommandLimitText(0, "Hint."), "The selected template can't accept additional "
                                            "commands! Try another template. Hint.");
}

} // namespace tavmoor

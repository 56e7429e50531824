#include "disc/runtime_configuration.h"

#include "core/document/field_writer.h"
#include "core/files/runtime_error.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace tavmoor {

TEST(WriteRuntimeConfiguration, WritesAFreshFileIntoTheBuildFolder) {
    const test::TemporaryFolder folder;
    const auto document = std::make_unique<ProjectDocument>();
    document->OsnovniPodaci.Vertekst = "two\r\nlines";
    const std::string text = FieldFileText(*document, FieldFile::Configuration);
    EXPECT_NE(text.find("\r\nVertekst=twoChr$(13)Chr$(10)lines\r\n"), std::string::npos);
    for (const char* ending : {"", "\\"}) {
        folder.Write("tavmoor.cfg", std::string(text.size() * 2, 'x'));
        WriteRuntimeConfiguration(*document, folder.Document() + ending);
        EXPECT_EQ(folder.Read("tavmoor.cfg"), text);
    }
    EXPECT_EQ(folder.Names(), std::set<std::string>{"tavmoor.cfg"});
    EXPECT_THROW(WriteRuntimeConfiguration(*document, folder.Document("gone")), RuntimeError);
}

} // namespace tavmoor

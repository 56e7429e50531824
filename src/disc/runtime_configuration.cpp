#include "disc/runtime_configuration.h"

#include "core/document/field_writer.h"
#include "core/files/file_store.h"
#include "core/text/path_text.h"
#include "package/package_format.h"

namespace tavmoor {

std::string WriteRuntimeConfiguration(const ProjectDocument& document,
                                      const std::string& buildFolder) {
    std::string path = WithBackslash(buildFolder) + std::string(package_format::ConfigurationName);
    WriteFreshFile(path, FieldFileText(document, FieldFile::Configuration));
    return path;
}

} // namespace tavmoor

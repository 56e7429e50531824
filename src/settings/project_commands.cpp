#include "settings/project_commands.h"

namespace tavmoor {

void ProjectCommands::NewProject() {}
void ProjectCommands::OpenProject() {}
void ProjectCommands::OpenExample() {}
void ProjectCommands::SaveProject() {}
void ProjectCommands::SaveProjectAs() {}
void ProjectCommands::KeepUnsaved() {}

} // namespace tavmoor

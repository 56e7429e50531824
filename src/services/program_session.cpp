#include "services/program_session.h"

#include "core/document_path.h"

namespace tavmoor {

std::string InProgramFolder(const ProgramSession& session, std::string_view name) {
    return WithBackslash(session.programFolder) + std::string(name);
}

} // namespace tavmoor

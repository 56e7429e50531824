#include "commands.h"

#include "console.h"
#include "package/package_reader.h"
#include "process.h"

namespace tavmoor::cli {

int PackageListCommand(const std::string& file) {
    const PackageFile package(NativeArgument(file));
    for (const PackageEntry& entry : package.Entries()) {
        PrintLine(std::to_string(entry.size) + "\t" + OneLine(entry.name));
    }
    return 0;
}

int PackageExtractCommand(const std::string& file, const std::string& folder) {
    PackageFile package(NativeArgument(file));
    package.ExtractTo(NativeArgument(folder));
    return 0;
}

} // namespace tavmoor::cli

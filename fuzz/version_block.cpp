// Any bytes as a program file: reads stay bounded and the company name is UTF-8.

#include "disc/version_block.h"
#include "check.h"
#include "core/text/code_page.h"

#include <algorithm>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::size_t bytesRead = 0;
    std::size_t reads = 0;
    const auto name =
        tavmoor::ReadCompanyName([&](std::uint64_t offset, std::span<unsigned char> buffer) {
            bytesRead += buffer.size();
            ++reads;
            if (offset > size || buffer.size() > size - offset) {
                return false;
            }
            std::copy_n(data + offset, buffer.size(), buffer.begin());
            return true;
        });
    Check(reads <= 16 && bytesRead <= 2U << 20U, "few bytes are read");
    if (name) {
        std::string copy;
        for (std::size_t position = 0; position < name->size();) {
            tavmoor::AppendUtf8(copy, tavmoor::NextUtf8(*name, position));
        }
        Check(copy == *name, "the name is UTF-8");
        Check(name->find('\0') == std::string::npos, "the name ends at its NUL");
    }
    return 0;
}

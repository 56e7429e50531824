#include "core/text/code_page.h"
#include "core/text/code_page_platform.h"

#include <array>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <iconv.h>
#include <string>
#include <system_error>

namespace tavmoor {

namespace {

class Converter {
public:
    explicit Converter(int number)
        : handle_(iconv_open("UTF-32LE", ("CP" + std::to_string(number)).c_str())) {
        if (handle_ == InvalidHandle()) {
            throw std::system_error(errno, std::generic_category(), "iconv_open");
        }
    }
    Converter(const Converter&) = delete;
    Converter& operator=(const Converter&) = delete;
    ~Converter() { iconv_close(handle_); }

    std::optional<char32_t> Convert(char byte) {
        std::array<char, 8> output{};
        char* in = &byte;
        char* out = output.data();
        std::size_t in_left = 1;
        std::size_t out_left = output.size();
        // A byte that starts a pair (Vietnamese tones) is held back until the state is flushed.
        const bool failed = iconv(handle_, &in, &in_left, &out, &out_left) == Failure() ||
                            iconv(handle_, nullptr, nullptr, &out, &out_left) == Failure();
        if (failed || out_left != output.size() - sizeof(char32_t)) {
            iconv(handle_, nullptr, nullptr, nullptr, nullptr);
            return std::nullopt;
        }
        char32_t character = 0;
        std::memcpy(&character, output.data(), sizeof character);
        return character;
    }

private:
    static iconv_t InvalidHandle() {
        return reinterpret_cast<iconv_t>(-1); // NOLINT(performance-no-int-to-ptr): as iconv has it
    }
    static std::size_t Failure() { return static_cast<std::size_t>(-1); }

    iconv_t handle_;
};

} // namespace

int PlatformCodePageNumber() {
    // The order in which the C library itself decides on the language of characters.
    for (const char* variable : {"LC_ALL", "LC_CTYPE", "LANG"}) {
        const char* locale = std::getenv(variable);
        if (locale != nullptr && *locale != '\0') {
            return CodePageOfLocale(locale);
        }
    }
    return CodePageOfLocale("");
}

std::array<std::optional<char32_t>, 256> PlatformCodePageTable(int number) {
    Converter converter(number);
    std::array<std::optional<char32_t>, 256> table;
    for (std::size_t byte = 0; byte < table.size(); ++byte) {
        table[byte] = converter.Convert(static_cast<char>(byte));
    }
    return table;
}

} // namespace tavmoor

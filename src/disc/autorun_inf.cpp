#include "disc/autorun_inf.h"

#include "core/files/file_store.h"

namespace tavmoor {

std::string AutorunInfText(const ProjectDocument& document) {
    const MainTexts& texts = document.OsnovniPodaci;
    const std::string icon = texts.Ikona.empty() ? texts.exename : std::string(IconName);
    return "[Autorun]\r\nOpen=" + texts.exename + "\r\nIcon=" + icon + "\r\n";
}

void WriteAutorunInf(const ProjectDocument& document, std::string_view path) {
    WriteFreshFile(path, AutorunInfText(document));
}

} // namespace tavmoor

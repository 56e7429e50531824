#include "disc/autorun_inf.h"

namespace tavmoor {

std::string AutorunInfText(const ProjectDocument& document) {
    const MainTexts& texts = document.OsnovniPodaci;
    const std::string icon = texts.Ikona.empty() ? texts.exename : std::string(IconName);
    return "[Autorun]\r\nOpen=" + texts.exename + "\r\nIcon=" + icon + "\r\n";
}

} // namespace tavmoor

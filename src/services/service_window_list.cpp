#include "services/service_window_list.h"

#include "services/about_window.h"
#include "services/autorun_check_window.h"
#include "services/color_from_picture_window.h"
#include "services/color_menu.h"

namespace tavmoor {

void RegisterServiceWindows(ProgramContext context) {
    Register<Form13>(context, WindowName::Form13);
    Register<frmAbout>(context, WindowName::frmAbout);
    Register<menu2>(context, WindowName::menu2);
    Register<PicPrev>(context, WindowName::PicPrev);
}

} // namespace tavmoor

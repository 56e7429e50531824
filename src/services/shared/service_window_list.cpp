#include "services/shared/service_window_list.h"

#include "services/colors/color_from_picture_window.h"
#include "services/colors/color_menu.h"
#include "services/shared/about_window.h"
#include "services/shared/autorun_check_window.h"
#include "services/shared/picture_preview_window.h"

namespace tavmoor {

void RegisterServiceWindows(ProgramContext context) {
    Register<Form2>(context, WindowName::Form2);
    Register<Form13>(context, WindowName::Form13);
    Register<frmAbout>(context, WindowName::frmAbout);
    Register<menu2>(context, WindowName::menu2);
    Register<PicPrev>(context, WindowName::PicPrev);
}

} // namespace tavmoor

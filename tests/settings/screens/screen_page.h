#pragma once

#include "support/control.h"

namespace tavmoor {

/// The splash step or the exit step, whose controls differ in their names alone.
class ScreenPage : public test::Page {
    bool exit_;
    [[nodiscard]] test::Control At(const char* splash, const char* exit) const {
        return Page::At(exit_ ? exit : splash);
    }

public:
    ScreenPage(QWidget& panel, bool exit) : Page(panel), exit_(exit) {}

    test::Control show = At("Check1", "Check4"), click = At("Check18", "Check17");
    test::Control time = At("Text7", "Text9"), unit = At("Label47", "Label55");
    test::Control text = At("Text6", "Text8"), underline = At("Check8", "Check7");
    test::Control chooseFont = At("Command20", "Command22"), font = At("Label61", "Label58");
    test::Control size = At("Label60", "Label59"), picture = At("Label38", "Label51");
    test::Control browse = At("Command18", "Command23"), remove = At("Command54", "Command53");
    test::Control both = At("Option3", "Option6"), second = At("Option4", "Option7");
    test::Control third = At("Option5", "Option8"), color = At("Frame11", "Label53");
    test::Control chooseColor = At("Command19", "Command24"), height = At("VScroll1", "VScroll2");
    test::Control heightText = At("Label42", "Label94"), width = At("HScroll3", "HScroll4");
    test::Control widthText = At("Label57", "Label92"), textPlace = At("Combo9", "Combo7");
    test::Control picturePlace = At("Combo10", "Combo8");
};

} // namespace tavmoor

#include "menu/button_flow.h"

#include <algorithm>

namespace tavmoor {

namespace {

constexpr int MostCaptionLines = 2;
constexpr int CaptionAir = 12;
constexpr int GroupTitleGap = 4;

class Flow {
public:
    Flow(const LayoutRequest& request, const FlowRules& rules, int width)
        : request_(request), rules_(rules), gap_(Pixels(request.look.buttonGap)) {
        columns_ = std::max(rules.columns, 1);
        rows_ = (static_cast<int>(rules.count) + columns_ - 1) / columns_;
        cellWidth_ = std::max((width - (columns_ - 1) * gap_) / columns_, 1);
    }

    ButtonFlow Run() {
        flow_.buttons.resize(rules_.count);
        int y = 0;
        for (int row = 0; row < rows_; ++row) {
            y = PlaceGroupTitle(row, y);
            y = PlaceRow(row, y) + gap_;
        }
        flow_.height = std::max(y - gap_, 0);
        return std::move(flow_);
    }

private:
    [[nodiscard]] int Pixels(int length) const { return ToPixels(length, request_.dpi); }

    [[nodiscard]] const MenuCommand& Command(std::size_t index) const {
        return request_.model.commands[rules_.first + index];
    }

    /// The button of a cell; one beyond the count for a cell that stays free.
    [[nodiscard]] std::size_t IndexAt(int row, int column) const {
        const int index = rules_.downFirst ? column * rows_ + row : row * columns_ + column;
        return static_cast<std::size_t>(index);
    }

    /// Groups have titles only in one column, where each group begins a row of its own.
    int PlaceGroupTitle(int row, int y) {
        const std::size_t index = IndexAt(row, 0);
        if (!request_.look.groupTitles || columns_ != 1) {
            return y;
        }
        const MenuGroup group = Command(index).group;
        if (index > 0 && Command(index - 1).group == group) {
            return y;
        }
        if (request_.model.groupTitles[static_cast<std::size_t>(group)].empty()) {
            return y;
        }
        y += row > 0 ? gap_ : 0;
        const int height = request_.meter.LineHeight(request_.fonts.group);
        flow_.groups.push_back({group, {0, y, cellWidth_, height}});
        return y + height + Pixels(GroupTitleGap);
    }

    int PlaceRow(int row, int y) {
        int height = 0;
        for (int column = 0; column < columns_; ++column) {
            const std::size_t index = IndexAt(row, column);
            if (index < rules_.count) {
                height = std::max(height, HeightOf(Command(index)));
            }
        }
        for (int column = 0; column < columns_; ++column) {
            const std::size_t index = IndexAt(row, column);
            if (index < rules_.count) {
                flow_.buttons[index] = {column * (cellWidth_ + gap_), y, cellWidth_, height};
            }
        }
        return y + height;
    }

    [[nodiscard]] int HeightOf(const MenuCommand& command) const {
        const int inner = std::max(cellWidth_ - 2 * Pixels(request_.look.captionPadding), 1);
        const int line = request_.meter.LineHeight(request_.fonts.button);
        const int text =
            std::min(request_.meter.Measure(command.caption, request_.fonts.button, inner).height,
                     MostCaptionLines * line);
        return std::max(Pixels(request_.look.buttonHeight), text + Pixels(CaptionAir));
    }

    const LayoutRequest& request_;
    const FlowRules& rules_;
    int gap_;
    int columns_ = 1;
    int rows_ = 0;
    int cellWidth_ = 1;
    ButtonFlow flow_;
};

} // namespace

ButtonFlow FlowButtons(const LayoutRequest& request, const FlowRules& rules, int width) {
    return Flow(request, rules, width).Run();
}

} // namespace tavmoor

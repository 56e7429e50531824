#include "menu/menu_layout.h"

#include <algorithm>

namespace tavmoor {

namespace {

constexpr int HeaderAir = 14; ///< above and below what stands in the header
constexpr int HeaderGap = 14; ///< between the logo picture and the texts
constexpr int BodyGap = 20;   ///< between header, list and description
constexpr int ScrollBarWidth = 6;
constexpr int ScrollBarGap = 6;
constexpr int MostHeaderLines = 2;
constexpr int SmallestCell = 150;
constexpr int LeastListRows = 2;
constexpr int ReservedDescription = 100; ///< height kept free below a centred list

// Shares in percent.
constexpr int MostHeader = 36;
constexpr int MostLogoText = 35;
constexpr int MostColumn = 48;
constexpr int MostGrid = 62;
constexpr int FrameWithText = 60;
constexpr int MostReserved = 35;

constexpr int Percent(int share, int of) {
    return of * share / 100;
}

class Arranger {
public:
    explicit Arranger(const LayoutRequest& request) : request_(request), look_(request.look) {}

    MenuLayout Run() {
        PlaceHeader();
        const Box body = Body();
        switch (look_.buttonPlace) {
        case ButtonPlace::LeftColumn:
        case ButtonPlace::RightColumn:
            PlaceColumn(body);
            break;
        case ButtonPlace::BottomGrid:
            PlaceGrid(body);
            break;
        case ButtonPlace::Centre:
            PlaceCentre(body);
            break;
        }
        if (look_.picturePlace != PicturePlace::Frame) {
            layout_.picture = {0, 0, request_.client.width, request_.client.height};
        }
        if (!request_.backgroundPicture) {
            layout_.picture = {};
        }
        return std::move(layout_);
    }

private:
    [[nodiscard]] int Pixels(int length) const { return ToPixels(length, request_.dpi); }
    [[nodiscard]] int Margin() const {
        return std::min(Pixels(look_.margin), request_.client.width / 8);
    }

    [[nodiscard]] Extent HeaderTextExtent(const MenuText& text, const MenuFont& font,
                                          int width) const {
        if (text.text.empty()) {
            return {};
        }
        const Extent size = request_.meter.Measure(text.text, font, width);
        return {std::min(size.width, width),
                std::min(size.height, MostHeaderLines * request_.meter.LineHeight(font))};
    }

    [[nodiscard]] Extent LogoPictureExtent() const {
        const int most = Pixels(look_.logoPicture);
        const Extent natural{Pixels(request_.logoPicture.width),
                             Pixels(request_.logoPicture.height)};
        return ShrinkInto(natural, {most * 3, most});
    }

    void PlaceHeader() {
        const int width = request_.client.width;
        const int margin = Margin();
        const Extent picture = LogoPictureExtent();
        const int before = picture.Empty() ? 0 : picture.width + Pixels(HeaderGap);
        int room = std::max(width - 2 * margin - before, 0);
        const bool below = look_.logoBelowTitle;
        const Extent logo = HeaderTextExtent(request_.model.logo, request_.fonts.logo,
                                             below ? room : Percent(MostLogoText, room));
        if (!below && !logo.Empty()) {
            room = std::max(room - logo.width - Pixels(HeaderGap), 0);
        }
        const Extent title = HeaderTextExtent(request_.model.title, request_.fonts.title, room);
        const int texts = below ? title.height + logo.height : std::max(title.height, logo.height);
        const int content = std::max(texts, picture.height);
        if (content == 0) {
            return;
        }
        const int height =
            std::min(std::max(content + 2 * Pixels(HeaderAir), Pixels(look_.headerHeight)),
                     Percent(MostHeader, request_.client.height));
        layout_.header = {0, 0, width, height};
        int left = margin;
        if (look_.centredHeader) {
            const int all = before + std::max(title.width, below ? logo.width : 0);
            left = std::max((width - all) / 2, margin);
        }
        PlaceHeaderParts(left, before, picture, title, logo);
    }

    void PlaceHeaderParts(int left, int before, Extent picture, Extent title, Extent logo) {
        const auto centred = [&](int x, Extent part) {
            const int height = std::min(part.height, layout_.header.height);
            return Box{x, (layout_.header.height - height) / 2, part.width, height};
        };
        layout_.logoPicture = centred(left, picture);
        const int x = left + before;
        if (!look_.logoBelowTitle) {
            layout_.title = centred(x, title);
            layout_.logoText = centred(request_.client.width - Margin() - logo.width, logo);
            return;
        }
        const int widest = std::max(title.width, logo.width);
        const Box both = centred(x, {widest, title.height + logo.height});
        const int titleHeight = std::min(title.height, both.height);
        const auto indent = [&](Extent text) {
            return look_.centredHeader ? (widest - text.width) / 2 : 0;
        };
        layout_.title = {x + indent(title), both.y, title.width, titleHeight};
        layout_.logoText = {x + indent(logo), both.y + titleHeight, logo.width,
                            both.height - titleHeight};
    }

    [[nodiscard]] Box Body() const {
        const int margin = Margin();
        const int bottom = std::min(margin, request_.client.height / 10);
        const int top = layout_.header.Empty() ? bottom : layout_.header.Bottom() + Pixels(BodyGap);
        return {margin, top, std::max(request_.client.width - 2 * margin, 1),
                std::max(request_.client.height - bottom - top, 1)};
    }

    [[nodiscard]] std::size_t Count() const { return request_.model.commands.size(); }

    /// Shows a flow through `area`, and scrolls it when it is too high.
    void ShowList(const FlowRules& rules, Box area) {
        ButtonFlow flow = FlowButtons(request_, rules, area.width);
        if (flow.height > area.height) {
            const int bar = Pixels(ScrollBarWidth);
            layout_.scrollBar = {area.Right() - bar, area.y, bar, area.height};
            flow =
                FlowButtons(request_, rules, std::max(area.width - bar - Pixels(ScrollBarGap), 1));
        }
        layout_.list = area;
        layout_.listHeight = flow.height;
        Take(flow, area.x, area.y);
    }

    void Take(const ButtonFlow& flow, int x, int y) {
        for (const Box& button : flow.buttons) {
            layout_.buttons.push_back(button.Moved(x, y));
        }
        for (const GroupTitle& title : flow.groups) {
            layout_.groups.push_back({title.group, title.box.Moved(x, y)});
        }
    }

    void PlaceColumn(const Box& body) {
        const int width = std::min(Pixels(look_.columnWidth), Percent(MostColumn, body.width));
        const bool left = look_.buttonPlace == ButtonPlace::LeftColumn;
        const Box column{left ? body.x : body.Right() - width, body.y, width, body.height};
        const int rest = std::max(body.width - width - Pixels(BodyGap), 0);
        PlaceListAndProgram(column);
        PlacePictureAndText({left ? body.Right() - rest : body.x, body.y, rest, body.height});
    }

    /// The first of the commands of the program itself, which are the last ones.
    [[nodiscard]] std::size_t FirstOfProgram() const {
        const auto& commands = request_.model.commands;
        const auto other =
            std::find_if(commands.rbegin(), commands.rend(), [](const MenuCommand& command) {
                return command.group != MenuGroup::Program;
            });
        return static_cast<std::size_t>(commands.rend() - other);
    }

    /// The program's own buttons stand right below the list, and stay there while the list scrolls;
    /// in a window with no room for that they are part of the list.
    void PlaceListAndProgram(Box column) {
        const std::size_t listed = FirstOfProgram();
        const FlowRules programRules{listed, Count() - listed, 1, false};
        const FlowRules listRules{0, listed, 1, false};
        const ButtonFlow program = FlowButtons(request_, programRules, column.width);
        const int gap = Pixels(look_.buttonGap) * (program.groups.empty() ? 1 : 2);
        const int room = column.height - program.height - gap;
        const int height = FlowButtons(request_, listRules, column.width).height;
        layout_.firstFixed = listed;
        if (room < std::min(height, LeastListRows * Pixels(look_.buttonHeight))) {
            layout_.firstFixed = Count();
            ShowList({0, Count(), 1, false}, column);
            return;
        }
        column.height = std::min(room, height);
        ShowList(listRules, column);
        const int buttonWidth = listed == 0 ? column.width : layout_.buttons.front().width;
        Take(FlowButtons(request_, programRules, buttonWidth), column.x,
             column.Bottom() + (listed == 0 ? 0 : gap));
    }

    void PlacePictureAndText(Box area) {
        if (look_.picturePlace == PicturePlace::Frame && request_.backgroundPicture) {
            const bool texts = request_.model.HasDescriptions();
            layout_.picture = area;
            layout_.picture.height = texts ? Percent(FrameWithText, area.height) : area.height;
            const int used = layout_.picture.height + Pixels(BodyGap) / 2;
            area.y += used;
            area.height = std::max(area.height - used, 0);
        }
        layout_.description = area;
    }

    /// As many columns as fit, fewer when the rows stay as many: seven buttons stand in rows of
    /// four and three.
    [[nodiscard]] int GridColumns(int width) const {
        const int gap = Pixels(look_.buttonGap);
        const int fitting = (width + gap) / (Pixels(look_.columnWidth) + gap);
        const int most = std::clamp(fitting, 1, look_.mostColumns);
        const int count = static_cast<int>(Count());
        const int rows = (count + most - 1) / most;
        return (count + rows - 1) / rows;
    }

    void PlaceGrid(const Box& body) {
        const FlowRules rules{0, Count(), GridColumns(body.width), false};
        const int wanted = FlowButtons(request_, rules, body.width).height;
        const int most =
            request_.model.HasDescriptions() ? Percent(MostGrid, body.height) : body.height;
        const int height = std::min(wanted, most);
        layout_.firstFixed = Count();
        ShowList(rules, {body.x, body.Bottom() - height, body.width, height});
        layout_.description = {body.x, body.y, body.width,
                               std::max(body.height - height - Pixels(BodyGap), 0)};
    }

    void PlaceCentre(const Box& body) {
        Box area = body;
        if (request_.model.HasDescriptions()) {
            const int kept =
                std::min(Pixels(ReservedDescription), Percent(MostReserved, body.height));
            area.height = std::max(body.height - kept - Pixels(BodyGap), 0);
            layout_.description = {body.x, body.Bottom() - kept, body.width, kept};
        }
        const int gap = Pixels(look_.buttonGap);
        const int fitting = (body.width + gap) / (Pixels(SmallestCell) + gap);
        FlowRules rules{0, Count(), 1, true};
        int width = 0;
        int height = 0;
        for (const int most = std::clamp(fitting, 1, look_.mostColumns);; ++rules.columns) {
            const int gaps = (rules.columns - 1) * gap;
            width = std::min(rules.columns * Pixels(look_.columnWidth) + gaps, body.width);
            height = FlowButtons(request_, rules, width).height;
            if (height <= area.height || rules.columns == most) {
                break;
            }
        }
        layout_.firstFixed = Count();
        height = std::min(height, area.height);
        ShowList(rules, {body.x + (body.width - width) / 2, area.y + (area.height - height) / 2,
                         width, height});
    }

    const LayoutRequest& request_;
    const Look& look_;
    MenuLayout layout_;
};

} // namespace

int MenuLayout::MostScroll() const {
    return std::max(listHeight - list.height, 0);
}

bool MenuLayout::IsFixed(MenuGroup group) const {
    return group == MenuGroup::Program && firstFixed < buttons.size();
}

Box MenuLayout::ButtonBox(std::size_t button, int scroll) const {
    return button < firstFixed ? buttons[button].Moved(0, -scroll) : buttons[button];
}

std::optional<std::size_t> MenuLayout::ButtonAt(int x, int y, int scroll) const {
    for (std::size_t button = 0; button < buttons.size(); ++button) {
        const bool shows = button >= firstFixed || list.Contains(x, y);
        if (shows && ButtonBox(button, scroll).Contains(x, y)) {
            return button;
        }
    }
    return std::nullopt;
}

int MenuLayout::ScrollToShow(std::size_t button, int scroll) const {
    if (button >= firstFixed) {
        return scroll;
    }
    // The first button brings the title of its group along.
    const int top = button == 0 ? 0 : buttons[button].y - list.y;
    const int bottom = buttons[button].Bottom() - list.Bottom();
    return std::clamp(std::min(std::max(scroll, bottom), top), 0, MostScroll());
}

Box MenuLayout::ScrollThumb(int scroll) const {
    if (scrollBar.Empty() || MostScroll() == 0) {
        return {};
    }
    const long long track = scrollBar.height;
    const int height = std::max(static_cast<int>(track * list.height / listHeight),
                                std::min(scrollBar.height, 3 * scrollBar.width));
    const long long room = scrollBar.height - height;
    return {scrollBar.x, scrollBar.y + static_cast<int>(room * scroll / MostScroll()),
            scrollBar.width, height};
}

int MenuLayout::ScrollOfThumb(int y) const {
    const long long room = scrollBar.height - ScrollThumb(0).height;
    if (room <= 0) {
        return 0;
    }
    const long long scroll = static_cast<long long>(y - scrollBar.y) * MostScroll() / room;
    return static_cast<int>(std::clamp<long long>(scroll, 0, MostScroll()));
}

MenuLayout ArrangeMenu(const LayoutRequest& request) {
    return Arranger(request).Run();
}

DescriptionBoxes PlaceDescription(const LayoutRequest& request, const MenuLayout& layout,
                                  const Description& description) {
    DescriptionBoxes boxes;
    const Look& look = request.look;
    const Box& area = layout.description;
    const int wanted = request.panel ? look.panelPadding : 0;
    const int padding = std::min(ToPixels(wanted, request.dpi), area.width / 4);
    const Box inner = area.Inset(padding, std::min(padding, area.height / 4));
    if (description.Empty() || inner.Empty()) {
        boxes.panel = look.panelFillsArea ? area : Box{};
        return boxes;
    }
    const int limit = look.textWidth > 0 ? ToPixels(look.textWidth, request.dpi) : inner.width;
    const int width = std::min(limit, inner.width);
    const auto measure = [&](const std::string& text, const MenuFont& font, int mostHeight) {
        const Extent size = text.empty() ? Extent{} : request.meter.Measure(text, font, width);
        return Extent{std::min(size.width, width), std::clamp(size.height, 0, mostHeight)};
    };
    const Extent title =
        measure(description.title, request.fonts.descriptionTitle, inner.height / 2);
    const bool both = !description.title.empty() && !description.text.empty();
    const int gap = both ? request.meter.LineHeight(request.fonts.description) / 3 : 0;
    const Extent text = measure(description.text, request.fonts.description,
                                std::max(inner.height - title.height - gap, 0));
    const int height = title.height + gap + text.height;
    const bool bottom = look.buttonPlace == ButtonPlace::BottomGrid;
    const int x = inner.x + (look.centredDescription ? (inner.width - width) / 2 : 0);
    const int y = bottom ? inner.Bottom() - height : inner.y;
    boxes.title = {x, y, width, title.height};
    boxes.text = {x, y + title.height + gap, width, text.height};
    const int widest = look.centredDescription ? width : std::max(title.width, text.width);
    boxes.panel = look.panelFillsArea
                      ? area
                      : Box{x - padding, y - padding, widest + 2 * padding, height + 2 * padding};
    return boxes;
}

} // namespace tavmoor

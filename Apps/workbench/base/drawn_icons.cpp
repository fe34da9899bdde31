#include "Apps/workbench/base/drawn_icons.h"
#include "Apps/workbench/base/icon_colours.h"
#include "Apps/workbench/base/icon_table.h"
#include "Apps/workbench/base/painted_icon.h"
#include <QPainterPath>
#include <sstream>

namespace workbench {

namespace {

constexpr double kGrid = 16, kStroke = 1.2;

/// Reads the strokes of one drawing and paints them.
class StrokePainter {
public:
    StrokePainter(QPainter& painter, std::string_view strokes, Theme theme)
        : painter_(painter), words_(std::string(strokes)), theme_(theme) {}

    void paint() {
        for (std::string word; words_ >> word;)
            if (!takeColour(word)) takeShape(word);
        finish();
    }

private:
    bool takeColour(const std::string& word) {
        const auto lower = QString::fromStdString(word).toLower().toStdString();
        for (const auto& colour : kIconColours) {
            if (colour.word != lower) continue;
            finish();
            colour_ = colour.in(theme_);
            fills_ = word != lower;
            return true;
        }
        return false;
    }

    void takeShape(const std::string& word) {
        switch (word.front()) {
        case 'M': path_.moveTo(point()); break;
        case 'L': path_.lineTo(point()); break;
        case 'Z': path_.closeSubpath(); break;
        case 'R': {
            const auto corner = point(), size = point();
            path_.addRect(QRectF(corner, QSizeF(size.x(), size.y())));
            break;
        }
        case 'E': {
            const auto centre = point(), radii = point();
            path_.addEllipse(centre, radii.x(), radii.y());
            break;
        }
        case 'T': takeLetter(); break;
        default: path_.lineTo(QPointF(std::stod(word), number())); // a further point of L
        }
    }

    void takeLetter() {
        const auto corner = point();
        auto font = painter_.font();
        font.setPixelSize(int(number()));
        font.setBold(true);
        std::string letter;
        words_ >> letter;
        painter_.setFont(font);
        painter_.setPen(colour_);
        painter_.drawText(QRectF(corner, QSizeF(kGrid, kGrid)), QString::fromStdString(letter));
    }

    void finish() {
        painter_.setPen(QPen(colour_, kStroke, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        if (fills_)
            painter_.fillPath(path_, colour_);
        else
            painter_.strokePath(path_, painter_.pen());
        path_ = {};
    }

    double number() {
        double value = 0;
        words_ >> value;
        return value;
    }
    QPointF point() {
        const double x = number();
        return {x, number()};
    }

    QPainter& painter_;
    std::istringstream words_;
    Theme theme_;
    QPainterPath path_;
    QColor colour_;
    bool fills_ = false;
};

class DrawnIcon final : public PaintedIcon {
public:
    explicit DrawnIcon(std::string_view strokes) : strokes_(strokes) {}

    void paint(QPainter* painter, const QRect& place, QIcon::Mode mode, QIcon::State) override {
        constexpr double kDisabled = 0.45;
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->translate(place.topLeft());
        painter->scale(place.width() / kGrid, place.height() / kGrid);
        if (mode == QIcon::Disabled) painter->setOpacity(kDisabled);
        // a selected row is dark in both themes
        const auto theme = mode == QIcon::Selected ? Theme::Dark : currentTheme();
        StrokePainter(*painter, strokes_, theme).paint();
        painter->restore();
    }
    QIconEngine* clone() const override { return new DrawnIcon(*this); }

private:
    std::string_view strokes_;
};

struct SameIcon {
    std::string_view className, name;
};
/// Classes that are another one under a different name.
constexpr std::array kSameIcons{
    SameIcon{"Button", "CommandButton"},
    SameIcon{"RadioButton", "OptionButton"},
    SameIcon{"Picture", "PictureBox"},
    SameIcon{"SSTab", "TabStrip"},
    SameIcon{"MSFlexGrid", "Grid"},
    SameIcon{"MSHFlexGrid", "Grid"},
    SameIcon{"DataGrid", "Grid"},
    SameIcon{"DBGrid", "Grid"},
    SameIcon{"MonthView", "DTPicker"},
    SameIcon{"ImageCombo", "ComboBox"},
    SameIcon{"DataCombo", "ComboBox"},
    SameIcon{"DataList", "ListBox"},
    SameIcon{"DBCombo", "ComboBox"},
    SameIcon{"DBList", "ListBox"},
    SameIcon{"FlatScrollBar", "HScrollBar"},
    SameIcon{"Animation", "Movie"},
    SameIcon{"Winsock", "Network"},
    SameIcon{"Inet", "Network"},
    SameIcon{"MSComm", "Serial"},
    SameIcon{"Adodc", "Data"},
};

} // namespace

QIcon iconOfStrokes(std::string_view strokes) { return QIcon(new DrawnIcon(strokes)); }

QIcon drawnIcon(std::string_view name) {
    for (const auto& drawing : kIconTable)
        if (drawing.name == name) return iconOfStrokes(drawing.strokes);
    return {};
}

QIcon iconOfControl(const std::string& className) {
    auto name = className.substr(className.find('.') + 1);
    if (name.starts_with("QL")) name.erase(0, 2);
    for (const auto& same : kSameIcons)
        if (same.className == name) name = same.name;
    const auto icon = drawnIcon(name);
    return icon.isNull() ? drawnIcon("Control") : icon;
}

} // namespace workbench

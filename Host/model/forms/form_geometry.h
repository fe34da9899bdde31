#pragma once
// Place, size and scale of a form, over the lines that say them.
#include "Host/model/forms/designer_state.h"
#include <string>
#include <vector>

namespace host {

/// The units of a scale, in twips for one unit; 1 where the mode has none of its own.
struct TwipsPerUnit {
    double x = 1, y = 1;
};
TwipsPerUnit twipsPerUnit(int scaleMode);

/// The inner rectangle of a form and the frame round it, in twips.
struct FormExtent {
    double width = 0, height = 0;
    double left = 0, top = 0, right = 0, bottom = 0; ///< widths of the frame
};

/// The file holds the inner rectangle (ClientLeft, ClientTop, ClientWidth, ClientHeight, in twips) and its size in
/// the form's own units (ScaleWidth, ScaleHeight). Left, Top, Width and Height are those of the outer rectangle: a
/// frame wider, whose size comes from BorderStyle. A pixel has 15 twips.
class FormGeometry {
public:
    explicit FormGeometry(DesignerState& state) : state_(state), root_(state.root()) {}

    /// True for the names that this class answers for.
    static bool owns(std::string_view name);
    /// True for the lines behind those names, which are no properties themselves.
    static bool isClientLine(std::string_view key);

    double value(std::string_view name) const;
    /// Errors 6 and 380 for sizes that no form has. A change of the inner size changes ScaleWidth and ScaleHeight; a
    /// change of the scale changes them and the places and sizes of the controls that lie directly on the form.
    void value(std::string_view name, double value);

    /// The scale of the form's own units.
    TwipsPerUnit scale() const;
    FormExtent extent() const;

private:
    struct Frame {
        int width = 0, height = 0, left = 0, top = 0;
    };
    Frame frame() const;
    double number(std::string_view key, double fallback) const;
    void write(FormBlock& block, std::string_view key, const std::string& literal, std::string_view comment = {});
    int scaleMode() const;
    void setClient(std::string_view key, double twips);
    void setScaleMode(int mode);
    void setScaleSize(std::string_view key, double units);
    void writeScaleSizes();
    void rescaleControls(const TwipsPerUnit& before);
    std::vector<ScaledLine> scaledLines() const;
    void putBack(const ScaleChange& back, const ScaleChange& change);

    DesignerState& state_;
    FormBlock& root_;
};

} // namespace host

#pragma once
// Position, size and scale of a form, over its lines.
#include "Host/model/forms/designer_state.h"
#include "Host/model/forms/scale_modes.h"
#include <string>
#include <vector>

namespace host {

/// The size of the client area of a form and of the frame around it, in twips.
struct FormExtent {
    double width = 0, height = 0;
    double left = 0, top = 0, right = 0, bottom = 0; ///< of the frame
};

/// The file has the client area (ClientLeft, ClientTop, ClientWidth, ClientHeight, in twips) and its size in the form's
/// units (ScaleWidth, ScaleHeight). Left, Top, Width and Height include the frame, whose size depends on BorderStyle. A
/// pixel has 15 twips.
class FormGeometry {
public:
    explicit FormGeometry(DesignerState& state) : state_(state), root_(state.root()) {}

    /// True for the properties that this class implements.
    static bool owns(std::string_view name);
    /// True for lines that are not properties themselves.
    static bool isClientLine(std::string_view key);

    double value(std::string_view name) const;
    /// Errors 6 and 380 for invalid sizes. Changing the client size changes ScaleWidth and ScaleHeight. Changing the
    /// scale also changes the positions and sizes of the controls directly on the form.
    void value(std::string_view name, double value);

    /// The size of the form's units.
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

#pragma once
// The grid of the messages window without its drawing: columns, rows and row heights. Lengths are in twips.
#include "Add-in/platform/device_context.h"
#include "Add-in/platform/screen.h"
#include <algorithm>
#include <array>
#include <cstdint>
#include <deque>
#include <memory>
#include <string>

namespace fernwick {

/// The alignment of a cell's text, as the grid numbers it.
enum FlexAlignment : int {
    flexAlignLeftCenter = 1,
    flexAlignCenterTop = 3,
    flexAlignCenterCenter = 4,
    /// Aligns texts to the left.
    flexAlignGeneral = 9,
};

/// Returns the length, or 1 if it is smaller; used for widths and divisors.
constexpr std::int32_t keepPositive(std::int32_t length) { return std::max(length, 1); }

class MessageGrid {
public:
    enum Column { FileNameColumn, PictureColumn, TitleColumn, LineColumn, ErrorColumn, MessageColumn, kColumns };
    static constexpr std::int32_t kFixedRows = 1;

    struct ColumnDesign {
        const char* header;
        bool isHeaderBold;
        FlexAlignment cells;
        FlexAlignment headers;
        /// Share of the width that is left beside the picture.
        double share;
    };

    struct Row {
        std::array<std::string, kColumns> cells;
        /// A tMessageType, or 0 for a message whose stored type is neither.
        int type = 0;
        /// A BMP file's bytes; null for a row without a picture.
        std::shared_ptr<const std::string> picture;
        /// The message's size, measured when it was added.
        TextExtent extent;
        std::int32_t height = 0;
    };

    explicit MessageGrid(const Screen& screen) : twipsX_(screen.TwipsPerPixelX()), twipsY_(screen.TwipsPerPixelY()) {}

    static const ColumnDesign& design(Column column);

    /// Includes the header row.
    std::int32_t rowCount() const { return std::int32_t(rows_.size()) + kFixedRows; }
    /// Counts from 1. Error 30009 for a row that is not a message.
    const Row& row(std::int32_t index) const;
    /// Row 0 is the header. Error 30009 for a row that does not exist.
    std::string cell(std::int32_t index, Column column) const;

    /// Inserts a new row below the header or at the end. The returned row stays valid when other rows are added or
    /// removed.
    std::shared_ptr<Row> insert(std::array<std::string, kColumns> cells, bool atTop);
    void clear() { rows_.clear(); }

    /// Null if no window draws the grid; texts then have no size. The context must outlive the grid or be reset.
    void measureWith(const DeviceContext* context) { context_ = context; }
    TextExtent measured(const std::string& text) const noexcept;
    /// Stores the size of the row's message.
    void measure(Row& row) { row.extent = measured(row.cells[MessageColumn]); }
    void measureAll();
    /// Sets the row's height to the lines that the message needs in the last column.
    void fitHeight(Row& row);

    /// Sets the document's size and the grid's position in it.
    void SetGridSizes(std::int32_t documentWidth, std::int32_t documentHeight, std::int32_t top);
    std::int32_t width() const { return width_; }
    std::int32_t height() const { return height_; }
    std::int32_t columnWidth(Column column) const { return columnWidths_[column]; }
    std::int32_t rowHeight(std::int32_t index) const;
    std::int32_t rowHeightMin() const { return rowHeightMin_; }
    float twipsX() const { return twipsX_; }

private:
    float twipsX_, twipsY_;
    const DeviceContext* context_ = nullptr;
    std::deque<std::shared_ptr<Row>> rows_;
    std::array<std::int32_t, kColumns> columnWidths_{};
    std::int32_t width_ = 0, height_ = 0, rowHeightMin_ = 0;
};

} // namespace fernwick

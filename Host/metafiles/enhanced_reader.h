#pragma once
// The records of the 32-bit format.
#include "Host/metafiles/enhanced_records.h"
#include "Host/metafiles/record_objects.h"
#include <map>
#include <optional>
#include <string_view>

namespace host {

class EnhancedReader {
public:
    explicit EnhancedReader(std::string_view bytes) : rest_(bytes) {}

    std::optional<Metafile> read();

private:
    bool readHeader();
    void readRecord(EnhancedRecord type, std::string_view record);
    void readContext(EnhancedRecord type, Fields in);
    void readMapping(EnhancedRecord type, Fields in);
    void readObject(EnhancedRecord type, Fields in);
    void select(std::uint32_t number);
    void readShape(EnhancedRecord type, Fields in);
    void readPoints(EnhancedRecord type, Fields in);
    void readPath(EnhancedRecord type);
    void readText(EnhancedRecord type, std::string_view record);
    void readBitmap(EnhancedRecord type, std::string_view record);
    void setMapMode(std::uint32_t mode);

    std::string_view rest_;
    MetafileCanvas canvas_;
    double width_ = 0, height_ = 0;
    DrawnPoint pixelsPerMillimetre_;
    std::map<std::uint32_t, MetafileObject> objects_;
};

} // namespace host

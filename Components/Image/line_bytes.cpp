#include "Components/Image/line_bytes.h"
#include "Components/Image/image_format.h"
#include <algorithm>
#include <type_traits>
#include <utility>

namespace image {

namespace {

struct LineList {
    static const auto& of(const Procedure& procedure) { return procedure.lines; }
    static auto& of(Procedure& procedure) { return procedure.lines; }
    static std::uint32_t codeOf(const LineStart& start) { return start.code; }

    static void write(Writer& out, const LineStart& last, const LineStart& start) {
        const auto words = start.code - last.code, lines = start.line - last.line;
        if (words <= kLongestLineStep && lines < kLineSteps) return out.u8(std::uint8_t(words * kLineSteps + lines));
        out.u8(kFarLine);
        out.variable(words);
        out.variable(withSignLast(lines));
    }
    static LineStart read(Reader& in, const LineStart& last) {
        if (const auto step = in.u8(); step != kFarLine)
            return {last.code + step / kLineSteps, last.line + step % kLineSteps};
        const auto code = last.code + in.variable();
        return {code, last.line + withSignFirst(in.variable())};
    }
};

struct StatementList {
    static const auto& of(const Procedure& procedure) { return procedure.statements; }
    static auto& of(Procedure& procedure) { return procedure.statements; }
    static std::uint32_t codeOf(std::uint32_t start) { return start; }
    static void write(Writer& out, std::uint32_t last, std::uint32_t start) { out.variable(start - last); }
    static std::uint32_t read(Reader& in, std::uint32_t last) { return last + in.variable(); }
};

/// Whether starts ascend and are within the code, so that a list is never longer than the code.
template <class List>
class Order {
public:
    explicit Order(const Procedure& procedure) : words_(procedure.words) {}
    bool accepts(const auto& start) {
        const std::int64_t place = List::codeOf(start);
        return place > std::exchange(last_, place) && place < words_;
    }

private:
    std::int64_t last_ = -1, words_;
};

template <class List>
void writeList(Writer& out, const Procedure& procedure) {
    const auto& list = List::of(procedure);
    out.variable(std::uint32_t(list.size()));
    typename std::decay_t<decltype(list)>::value_type last{};
    Order<List> order{procedure};
    for (const auto& start : list) {
        if (!order.accepts(start)) imageIsRefused("The lines of a procedure are not in order.");
        List::write(out, std::exchange(last, start), start);
    }
}

template <class List>
void readList(Reader& in, Procedure& procedure) {
    auto& list = List::of(procedure);
    const auto count = in.variable();
    if (count > in.rest().size()) imageIsDamaged("a count is larger than the file");
    list.reserve(count);
    typename std::decay_t<decltype(list)>::value_type last{};
    Order<List> order{procedure};
    for (std::uint32_t i = 0; i < count; ++i) {
        last = List::read(in, last);
        if (!order.accepts(last)) imageIsDamaged("the lines of a procedure are not in order");
        list.push_back(last);
    }
}

/// Each procedure that has a list begins with its distance from the last such procedure.
template <class List>
std::string encodeLists(const std::vector<Procedure>& procedures) {
    Writer out;
    out.variable(std::uint32_t(
        std::ranges::count_if(procedures, [](const Procedure& each) { return !List::of(each).empty(); })));
    std::size_t next = 0;
    for (std::size_t i = 0; i < procedures.size(); ++i) {
        if (List::of(procedures[i]).empty()) continue;
        out.variable(std::uint32_t(i - next));
        writeList<List>(out, procedures[i]);
        next = i + 1;
    }
    return std::move(out).bytes();
}

template <class List>
void decodeLists(Reader& in, std::vector<Procedure>& procedures) {
    std::size_t next = 0;
    for (auto count = in.variable(); count > 0; --count) {
        next += in.variable();
        if (next >= procedures.size()) imageIsDamaged("a procedure is missing");
        readList<List>(in, procedures[next++]);
    }
    if (!in.atEnd()) imageIsDamaged("a section is too long");
}

} // namespace

std::string encodeLines(const std::vector<Procedure>& procedures) { return encodeLists<LineList>(procedures); }
void decodeLines(Reader in, std::vector<Procedure>& procedures) { decodeLists<LineList>(in, procedures); }

std::string encodeStatements(const std::vector<Procedure>& procedures) {
    return encodeLists<StatementList>(procedures);
}
void decodeStatements(Reader in, std::vector<Procedure>& procedures) { decodeLists<StatementList>(in, procedures); }

} // namespace image

#include "Components/Language/reader/member_reader.h"

namespace language {
namespace {

MemberKind readKind(LineReader& line) {
    if (line.acceptWord("Function")) return MemberKind::Function;
    if (line.acceptWord("Property")) return MemberKind::Property;
    if (line.acceptWord("Sub")) return MemberKind::Sub;
    if (line.acceptWord("Const")) return MemberKind::Constant;
    if (line.acceptWord("Event")) return MemberKind::Event;
    line.fail("expected Sub, Function, Property, Const, Event or Include");
}

void acceptArray(LineReader& line, bool& isArray) {
    if (!line.accept('(')) return;
    line.expect(')');
    isArray = true;
}

/// A handler may assign to the parameters of its event unless they are ByVal, as in its declaration.
Parameter readParameter(LineReader& line, MemberKind kind) {
    Parameter parameter;
    parameter.optional = line.acceptWord("Optional");
    parameter.paramArray = line.acceptWord("ParamArray");
    parameter.byRef = line.acceptWord("ByRef") || (kind == MemberKind::Event && !line.acceptWord("ByVal"));
    parameter.name = line.name();
    acceptArray(line, parameter.isArray);
    if (line.acceptWord("As")) parameter.type = line.name();
    if (line.accept('=')) parameter.defaultValue = line.expression();
    return parameter;
}

void readParameters(LineReader& line, Member& member) {
    if (!line.accept('(') || line.accept(')')) return;
    do member.parameters.push_back(readParameter(line, member.kind));
    while (line.accept(','));
    line.expect(')');
}

bool readAttribute(LineReader& line, Member& member) {
    if (line.acceptWord("pure")) return member.pure = true;
    if (line.acceptWord("default")) return member.isDefault = true;
    if (line.acceptWord("enumerates")) return member.enumerates = true;
    if (line.acceptWord("hidden")) return member.hidden = true;
    if (line.acceptWord("readonly")) return !(member.writable = false);
    if (line.acceptWord("writeonly")) return !(member.readable = false);
    if (!line.acceptWord("absent")) return false;
    member.instead = line.quoted();
    return !(member.onDevices = false);
}

void readAttributes(LineReader& line, Member& member) {
    while (!line.atEnd())
        if (!readAttribute(line, member)) line.fail("unknown word");
    member.help = line.help();
}

} // namespace

Member readMember(LineReader& line) {
    Member member;
    member.kind = readKind(line);
    member.name = line.name();
    readParameters(line, member);
    if (line.acceptWord("As")) {
        member.type = line.name();
        acceptArray(line, member.isArray);
    }
    if (member.kind == MemberKind::Constant) {
        line.expect('=');
        member.value = line.expression();
    }
    readAttributes(line, member);
    return member;
}

Member readEnumMember(LineReader& line) {
    Member member;
    member.kind = MemberKind::Constant;
    member.type = "Long";
    member.name = line.name();
    line.expect('=');
    member.value = line.expression();
    readAttributes(line, member);
    return member;
}

} // namespace language

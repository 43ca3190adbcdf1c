#include "namerules.h"

#include <serdesip/protocolgendlg.h>

#include <QDir>
#include <QRegularExpression>

#include <algorithm>

namespace IPSERDESIP {

namespace {

constexpr int kLongestFileName = 255; // bytes, what file systems take

bool isControl(QChar c) {
    return c.category() == QChar::Other_Control;
}

/// The name as a message can show it: control characters would break its line.
QString shown(QString name) {
    std::replace_if(name.begin(), name.end(), isControl, QChar(0xFFFD));
    constexpr int kMost = 60;
    return name.size() > kMost ? name.left(kMost) + QChar(0x2026) : name;
}

} // namespace

QStringList fileNameFaults(const QString& name) {
    if (name.trimmed().isEmpty()) {
        return {protocolGenDlg::tr(
            "The file name is empty: give the folder that the instance writes to a name.")};
    }
    QStringList faults;
    const auto add = [&](const QString& sentence) { faults.append(sentence.arg(shown(name))); };
    if (QDir::isAbsolutePath(name)) {
        add(protocolGenDlg::tr(
            "The file name \"%1\" is an absolute path: give a plain name; the folder is made "
            "in the transceiver working directory."));
    } else if (name.contains(QLatin1Char('/')) || name.contains(QLatin1Char('\\'))) {
        add(protocolGenDlg::tr(
            "The file name \"%1\" contains a path separator (\"/\" or \"\\\"): give a plain "
            "name."));
    }
    const QStringList parts = name.split(QRegularExpression(QStringLiteral("[/\\\\]")));
    if (parts.contains(QLatin1String("..")) || parts.contains(QLatin1String("."))) {
        add(protocolGenDlg::tr(
            "The file name \"%1\" names a folder relative to another (\".\" or \"..\"): give "
            "a plain name."));
    }
    if (std::any_of(name.begin(), name.end(), isControl)) {
        add(protocolGenDlg::tr("The file name \"%1\" contains a control character: remove it."));
    }
    if (const int bytes = name.toUtf8().size(); bytes > kLongestFileName) {
        faults.append(protocolGenDlg::tr("The file name is %1 bytes long: at most %2 are possible.")
                          .arg(bytes)
                          .arg(kLongestFileName));
    }
    return faults;
}

QString moduleNameFault(const QString& name) {
    if (name.isEmpty()) {
        return protocolGenDlg::tr("The module name is empty: give the module a name.");
    }
    if (!isVerilogIdentifier(name)) {
        return protocolGenDlg::tr(
                   "The module name \"%1\" is no Verilog identifier: it begins with a letter or "
                   "\"_\" and goes on with letters, digits, \"_\" and \"$\".")
            .arg(shown(name));
    }
    if (isVerilogKeyword(name)) {
        return protocolGenDlg::tr(
                   "The module name \"%1\" is a reserved word of Verilog or SystemVerilog: choose "
                   "another.")
            .arg(name);
    }
    return {};
}

bool isVerilogIdentifier(const QString& name) {
    static const QRegularExpression form(
        QRegularExpression::anchoredPattern(QStringLiteral("[A-Za-z_][A-Za-z0-9_$]*")));
    return form.match(name).hasMatch();
}

bool isVerilogKeyword(const QString& name) {
    // Sorted, for the search below.
    // clang-format off
    static const char* const words[] = {
        "accept_on", "alias", "always", "always_comb", "always_ff", "always_latch", "and",
        "assert", "assign", "assume", "automatic", "before", "begin", "bind", "bins", "binsof",
        "bit", "break", "buf", "bufif0", "bufif1", "byte", "case", "casex", "casez", "cell",
        "chandle", "checker", "class", "clocking", "cmos", "config", "const", "constraint",
        "context", "continue", "cover", "covergroup", "coverpoint", "cross", "deassign",
        "default", "defparam", "design", "disable", "dist", "do", "edge", "else", "end",
        "endcase", "endchecker", "endclass", "endclocking", "endconfig", "endfunction",
        "endgenerate", "endgroup", "endinterface", "endmodule", "endpackage", "endprimitive",
        "endprogram", "endproperty", "endsequence", "endspecify", "endtable", "endtask", "enum",
        "event", "eventually", "expect", "export", "extends", "extern", "final", "first_match",
        "for", "force", "foreach", "forever", "fork", "forkjoin", "function", "generate",
        "genvar", "global", "highz0", "highz1", "if", "iff", "ifnone", "ignore_bins",
        "illegal_bins", "implements", "implies", "import", "incdir", "include", "initial",
        "inout", "input", "inside", "instance", "int", "integer", "interconnect", "interface",
        "intersect", "join", "join_any", "join_none", "large", "let", "liblist", "library",
        "local", "localparam", "logic", "longint", "macromodule", "matches", "medium",
        "modport", "module", "nand", "negedge", "nettype", "new", "nexttime", "nmos", "nor",
        "noshowcancelled", "not", "notif0", "notif1", "null", "or", "output", "package",
        "packed", "parameter", "pmos", "posedge", "primitive", "priority", "program",
        "property", "protected", "pull0", "pull1", "pulldown", "pullup",
        "pulsestyle_ondetect", "pulsestyle_onevent", "pure", "rand", "randc", "randcase",
        "randsequence", "rcmos", "real", "realtime", "ref", "reg", "reject_on", "release",
        "repeat", "restrict", "return", "rnmos", "rpmos", "rtran", "rtranif0", "rtranif1",
        "s_always", "s_eventually", "s_nexttime", "s_until", "s_until_with", "scalared",
        "sequence", "shortint", "shortreal", "showcancelled", "signed", "small", "soft",
        "solve", "specify", "specparam", "static", "string", "strong", "strong0", "strong1",
        "struct", "super", "supply0", "supply1", "sync_accept_on", "sync_reject_on", "table",
        "tagged", "task", "this", "throughout", "time", "timeprecision", "timeunit", "tran",
        "tranif0", "tranif1", "tri", "tri0", "tri1", "triand", "trior", "trireg", "type",
        "typedef", "union", "unique", "unique0", "unsigned", "until", "until_with", "untyped",
        "use", "uwire", "var", "vectored", "virtual", "void", "wait", "wait_order", "wand",
        "weak", "weak0", "weak1", "while", "wildcard", "wire", "with", "within", "wor", "xnor",
        "xor",
    };
    // clang-format on
    const QByteArray wanted = name.toLatin1();
    return std::binary_search(std::begin(words), std::end(words), wanted.constData(),
                              [](const char* a, const char* b) { return qstrcmp(a, b) < 0; });
}

} // namespace IPSERDESIP

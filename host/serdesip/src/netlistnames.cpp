// Which texts of a configuration may become part of the netlist flow.

#include "serdesip/netlist.h"

#include <QSet>

namespace IPSERDESIP {

namespace {

constexpr int lengthLimit = 128;

// clang-format off
const char* const keywords =
    // Verilog
    "always and assign automatic begin buf bufif0 bufif1 case casex casez cell cmos config "
    "deassign default defparam design disable edge else end endcase endconfig endfunction "
    "endgenerate endmodule endprimitive endspecify endtable endtask event for force forever fork "
    "function generate genvar highz0 highz1 if ifnone incdir include initial inout input instance "
    "integer join large liblist library localparam macromodule medium module nand negedge nmos "
    "nor noshowcancelled not notif0 notif1 or output parameter pmos posedge primitive pull0 pull1 "
    "pulldown pullup pulsestyle_ondetect pulsestyle_onevent rcmos real realtime reg release repeat "
    "rnmos rpmos rtran rtranif0 rtranif1 scalared showcancelled signed small specify specparam "
    "strong0 strong1 supply0 supply1 table task time tran tranif0 tranif1 tri tri0 tri1 triand "
    "trior trireg unsigned use uwire vectored wait wand weak0 weak1 while wire wor xnor xor "
    // what SystemVerilog adds
    "accept_on alias always_comb always_ff always_latch assert assume before bind bins binsof bit "
    "break byte chandle checker class clocking const constraint context continue cover covergroup "
    "coverpoint cross dist do endchecker endclass endclocking endgroup endinterface endpackage "
    "endprogram endproperty endsequence enum eventually expect export extends extern final "
    "first_match foreach forkjoin global iff ignore_bins illegal_bins implements implies import "
    "inside int interconnect interface intersect join_any join_none let local logic longint "
    "matches modport nettype new nexttime null package packed priority program property protected "
    "pure rand randc randcase randsequence ref reject_on restrict return s_always s_eventually "
    "s_nexttime s_until s_until_with sequence shortint shortreal soft solve static string strong "
    "struct super sync_accept_on sync_reject_on tagged this throughout timeprecision timeunit type "
    "typedef union unique unique0 until until_with untyped var virtual void wait_order weak "
    "wildcard with within";
// clang-format on

bool isKeyword(const QString& name) {
    static const QSet<QString> set = [] {
        const QStringList list =
            QString::fromLatin1(keywords).split(QLatin1Char(' '), Qt::SkipEmptyParts);
        return QSet<QString>(list.begin(), list.end());
    }();
    return set.contains(name);
}

bool isLetter(QChar c) {
    return (c >= QLatin1Char('a') && c <= QLatin1Char('z')) ||
           (c >= QLatin1Char('A') && c <= QLatin1Char('Z')) || c == QLatin1Char('_');
}

bool isDigit(QChar c) {
    return c >= QLatin1Char('0') && c <= QLatin1Char('9');
}

QString lengthFlaw(const QString& name) {
    if (name.isEmpty()) {
        return QStringLiteral("the name is empty");
    }
    if (name.size() > lengthLimit) {
        return QStringLiteral("the name has %1 characters, more than %2")
            .arg(name.size())
            .arg(lengthLimit);
    }
    return {};
}

QString described(QChar c) {
    return c.isPrint() ? QStringLiteral("\"%1\"").arg(c)
                       : QStringLiteral("the character %1").arg(c.unicode());
}

} // namespace

QString moduleNameFlaw(const QString& name) {
    const QString flaw = lengthFlaw(name);
    if (!flaw.isEmpty()) {
        return flaw;
    }
    for (const QChar c : name) {
        if (!isLetter(c) && !isDigit(c)) {
            return QStringLiteral("%1 is neither a letter, a digit nor \"_\"").arg(described(c));
        }
    }
    if (isDigit(name.at(0))) {
        return QStringLiteral("the name begins with a digit");
    }
    return isKeyword(name) ? QStringLiteral("the name is a keyword of Verilog") : QString();
}

QString fileNameFlaw(const QString& name) {
    const QString flaw = lengthFlaw(name);
    if (!flaw.isEmpty()) {
        return flaw;
    }
    for (const QChar c : name) {
        if (!isLetter(c) && !isDigit(c) && c != QLatin1Char('-') && c != QLatin1Char('.')) {
            return QStringLiteral("%1 is neither a letter, a digit, \"_\", \"-\" nor \".\"")
                .arg(described(c));
        }
    }
    return isLetter(name.at(0)) || isDigit(name.at(0))
               ? QString()
               : QStringLiteral("the name begins with \"%1\"").arg(name.at(0));
}

} // namespace IPSERDESIP

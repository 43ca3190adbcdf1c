// Whatever the text: an error has a place, and what is read is written and read back the same.

#include "fuzz.h"

#include <utils/jsontext.h>

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray text(reinterpret_cast<const char*>(data), static_cast<int>(size));
    QVariant value;
    Utils::JsonError error;
    if (!Utils::parseJson(text, &value, &error)) {
        require(error.line > 0 && error.column > 0, "an error names line and column");
        require(!error.reason.isEmpty(), "an error has a reason");
        return 0;
    }
    for (const auto form : {Utils::JsonForm::Indented, Utils::JsonForm::Compact}) {
        QVariant again;
        const QByteArray written = Utils::writeJson(value, form);
        require(Utils::parseJson(written, &again, &error), "what is written can be read");
        require(Utils::writeJson(again, form) == written, "reading back gives the same bytes");
        require(again == value, "reading back gives the same values");
    }
    return 0;
}

#include "dialog/rules/datapath.h"

#include "model/config/values.h"

namespace IPCUSTOMIZED::rules {

QStringList codings(int width, const QString& ratio) {
    if (fits8B10B(width)) {
        return {Value::Off, Value::Code8B10B};
    }
    if (width == 16 && ratio == "1:4"_l1) {
        return {Value::Off, Value::Code64B66B, Value::Code64B67B};
    }
    return {Value::Off};
}

bool isBlockCoding(const QString& coding) {
    return coding == Value::Code64B66B || coding == Value::Code64B67B;
}

bool fits8B10B(int width) {
    return width == 10 || width == 20;
}

QString correctedMetaFrameLength(const QString& typed) {
    const int length = typed.toInt();
    return length < 5 || length > 16383 ? QStringLiteral("32") : typed;
}

BondingFields bondingFields(int words) {
    return {words >= 1, words >= 2, words >= 3};
}

CorrectionFields correctionFields(int data) {
    return {data != 0, data >= 3};
}

QStringList correctionClocks(int lanes) {
    if (lanes < 2) {
        return {QStringLiteral("User"), QStringLiteral("TX")};
    }
    return {QStringLiteral("User"), QStringLiteral("Quad"), QStringLiteral("TX")};
}

} // namespace IPCUSTOMIZED::rules

#pragma once

#include <QRegExpValidator>
#include <QString>

namespace IPCUSTOMIZED {

// clang-format off
inline constexpr char ratePattern[]      = "^(\\d{0,2}(\\.\\d{1,8})?)$"; ///< Gbps
inline constexpr char frequencyPattern[] = "^(\\d{1,3}(\\.\\d{1,8})?)$"; ///< MHz
inline constexpr char metaFramePattern[] = "^([1-9]\\d{0,4})$";
inline constexpr char bytePattern[]      = ">HH;0";        ///< input mask: two hex digits
inline constexpr char symbolMask[]       = "BBBBBBBBBB;0"; ///< input mask: ten binary digits
// clang-format on

/// Accepts what matches; a field that is left unfinished ("12.") gets its default back.
class DefaultingValidator : public QRegExpValidator {
public:
    DefaultingValidator(const char* pattern, const QString& fallback, QObject* parent)
        : QRegExpValidator(QRegExp(QLatin1String(pattern)), parent)
        , m_fallback(fallback) {}

    void fixup(QString& input) const override { input = m_fallback; }

private:
    QString m_fallback;
};

} // namespace IPCUSTOMIZED

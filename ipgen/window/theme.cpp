#include "ipgen/window/theme.h"

#include "ipgen/window/symbols.h"

#include <QApplication>
#include <QColor>
#include <QIcon>
#include <QPainter>
#include <QProxyStyle>
#include <QStyle>
#include <QStyleFactory>
#include <QStyleOption>

namespace Window {

namespace {

QPalette darkPalette() {
    const QColor window(0x2b, 0x2d, 0x30);
    const QColor base(0x1f, 0x20, 0x23);
    const QColor text(0xe8, 0xe8, 0xea);
    const QColor faint(0x8c, 0x8f, 0x94);
    QPalette palette(QColor(0x3a, 0x3d, 0x41), window);
    palette.setColor(QPalette::WindowText, text);
    palette.setColor(QPalette::Base, base);
    palette.setColor(QPalette::AlternateBase, QColor(0x26, 0x28, 0x2b));
    palette.setColor(QPalette::Text, text);
    palette.setColor(QPalette::ButtonText, text);
    palette.setColor(QPalette::BrightText, Qt::white);
    palette.setColor(QPalette::PlaceholderText, faint);
    palette.setColor(QPalette::ToolTipBase, QColor(0x3a, 0x3d, 0x41));
    palette.setColor(QPalette::ToolTipText, text);
    palette.setColor(QPalette::Highlight, QColor(0x2f, 0x6f, 0xb5));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, QColor(0x7f, 0xb8, 0xf0));
    palette.setColor(QPalette::LinkVisited, QColor(0xb9, 0xa0, 0xf0));
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, faint);
    }
    return palette;
}

/// A style with the window's own symbols for the pictures that Qt would read from files.
class SymbolStyle : public QProxyStyle {
public:
    using QProxyStyle::QProxyStyle;

    QIcon standardIcon(StandardPixmap picture, const QStyleOption* option,
                       const QWidget* widget) const override {
        switch (picture) {
        case SP_MessageBoxInformation:
            return symbolIcon(Symbol::Information);
        case SP_MessageBoxWarning:
            return symbolIcon(Symbol::Warning);
        case SP_MessageBoxCritical:
            return symbolIcon(Symbol::Error);
        case SP_LineEditClearButton:
        case SP_TitleBarCloseButton:
            return symbolIcon(Symbol::Close);
        case SP_ToolBarHorizontalExtensionButton:
            return symbolIcon(Symbol::More);
        default:
            return QProxyStyle::standardIcon(picture, option, widget);
        }
    }

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        // On a dark ground the edges of what can be filled in would hardly be seen.
        if ((element == PE_FrameLineEdit || element == PE_IndicatorCheckBox) &&
            isDark(option->palette) && (option->state & State_HasFocus) == 0) {
            painter->save();
            painter->setPen(edgeColor());
            painter->setBrush(Qt::NoBrush);
            painter->drawRect(option->rect.adjusted(0, 0, -1, -1));
            painter->restore();
        }
    }

private:
    static QColor edgeColor() { return {0x80, 0x84, 0x8a}; }
};

} // namespace

void applyTheme(Settings::Theme theme) {
    if (theme == Settings::Theme::System) {
        QApplication::setStyle(new SymbolStyle); // over the desktop's
        return;
    }
    QStyle* fusion = QStyleFactory::create(QStringLiteral("Fusion"));
    QApplication::setStyle(new SymbolStyle(fusion));
    QApplication::setPalette(theme == Settings::Theme::Dark ? darkPalette()
                                                            : fusion->standardPalette());
}

bool isDark(const QPalette& palette) {
    return palette.color(QPalette::Text).lightness() > palette.color(QPalette::Base).lightness();
}

QColor goodColor(const QPalette& palette) {
    return isDark(palette) ? QColor(0x7b, 0xc9, 0x8f) : QColor(0x1b, 0x6e, 0x35);
}

QColor warningColor(const QPalette& palette) {
    return isDark(palette) ? QColor(0xf0, 0xc0, 0x60) : QColor(0x8a, 0x55, 0x00);
}

QColor badColor(const QPalette& palette) {
    return isDark(palette) ? QColor(0xff, 0x96, 0x8a) : QColor(0xa8, 0x1e, 0x12);
}

} // namespace Window

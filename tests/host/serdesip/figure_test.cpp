// The port figure: where the pins stand, what the files hold, and the view that shows it.

#include "figureview.h"
#include "serdesip/portfigure.h"

#include <QBuffer>
#include <QGuiApplication>
#include <QImage>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTest>
#include <QXmlStreamReader>

#include <cmath>

using IPSERDESIP::FigureView;
using IPSERDESIP::PortFigure;
using Utils::PinFigure;

namespace {

PinFigure input(const QString& name, bool bus = false) {
    return {name, 0, bus, Qt::AlignLeft};
}

PinFigure output(const QString& name, bool bus = false) {
    return {name, 1, bus, Qt::AlignRight};
}

QList<PinFigure> manyPins(int count) {
    QList<PinFigure> pins;
    for (int i = 0; i < count; ++i) {
        const QString name = QStringLiteral("q0_ln%1_port_%2").arg(i % 4).arg(i);
        pins.append(i % 3 == 0 ? input(name + QStringLiteral("[7:0]"), true) : output(name));
    }
    return pins;
}

/// The texts of an SVG; empty when it is not well-formed.
QStringList svgTexts(const QByteArray& svg) {
    QStringList texts;
    QXmlStreamReader reader(svg);
    while (!reader.atEnd()) {
        if (reader.readNext() == QXmlStreamReader::Characters && !reader.isWhitespace()) {
            texts.append(reader.text().toString().trimmed());
        }
    }
    return reader.hasError() ? QStringList() : texts;
}

} // namespace

class FigureTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void side_data();
    void side();
    void pinsStandInOrder();
    void bitsOfARange_data();
    void bitsOfARange();
    void labelsStayInTheBox();
    void nothingOverlaps_data();
    void nothingOverlaps();
    void emptyList();
    void longModuleNameFits();
    void svgHoldsEveryName();
    void svgEscapesNames();
    void busIsThick();
    void sameBytesEachTime();
    void pngShowsTheFigure();
    void files();
    void refusedFile();
    void viewFitsAndZooms();
    void viewScrollsWhatDoesNotFit();
    void viewPaintsBothThemes();
};

void FigureTest::side_data() {
    QTest::addColumn<int>("direction");
    QTest::addColumn<int>("alignment");
    QTest::addColumn<bool>("left");
    QTest::newRow("input, left") << 0 << int(Qt::AlignLeft) << true;
    QTest::newRow("output, right") << 1 << int(Qt::AlignRight) << false;
    QTest::newRow("the alignment decides: output on the left") << 1 << int(Qt::AlignLeft) << true;
    QTest::newRow("the alignment decides: input on the right") << 0 << int(Qt::AlignRight) << false;
    QTest::newRow("centred vertically as well")
        << 1 << int(Qt::AlignLeft | Qt::AlignVCenter) << true;
    QTest::newRow("no side named: input") << 0 << int(Qt::AlignVCenter) << true;
    QTest::newRow("no side named: output") << 1 << int(Qt::AlignVCenter) << false;
}

void FigureTest::side() {
    QFETCH(int, direction);
    QFETCH(int, alignment);
    QFETCH(bool, left);
    const PinFigure pin(QStringLiteral("p"), direction, false,
                        static_cast<Qt::Alignment>(alignment));
    const PortFigure figure(QStringLiteral("m"), {pin});
    const PortFigure::Pin& placed = figure.pins().first();
    QCOMPARE(placed.left, left);
    QCOMPARE(placed.line.x1(), left ? figure.box().left() : figure.box().right());
    QCOMPARE(placed.line.x2() < placed.line.x1(), left);
}

void FigureTest::pinsStandInOrder() {
    const PortFigure figure(QStringLiteral("m"),
                            {output(QStringLiteral("a")), input(QStringLiteral("b")),
                             output(QStringLiteral("c")), input(QStringLiteral("d")),
                             output(QStringLiteral("e"))});
    QStringList names;
    for (const PortFigure::Pin& pin : figure.pins()) {
        names.append(pin.pin.name());
    }
    QCOMPARE(names.join(QString()), QStringLiteral("abcde"));
    const auto y = [&](int i) { return figure.pins().at(i).line.y1(); };
    QVERIFY(y(0) < y(2));
    QVERIFY(y(2) < y(4));
    QVERIFY(y(1) < y(3));
    QCOMPARE(y(0), y(1)); // each side starts at the top
    QCOMPARE(y(2), y(3));
}

void FigureTest::bitsOfARange_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("bits");
    QTest::newRow("87:0") << "d_o[87:0]" << 88;
    QTest::newRow("1:0") << "d_o[1:0]" << 2;
    QTest::newRow("0:0") << "d_o[0:0]" << 1;
    QTest::newRow("ascending") << "d_o[0:7]" << 8;
    QTest::newRow("offset") << "d_o[15:8]" << 8;
    QTest::newRow("none") << "d_o" << 0;
    QTest::newRow("one bit select") << "d_o[3]" << 0;
    QTest::newRow("not at the end") << "d[3:0]_o" << 0;
}

void FigureTest::bitsOfARange() {
    QFETCH(QString, name);
    QFETCH(int, bits);
    QCOMPARE(PortFigure(QStringLiteral("m"), {output(name, true)}).pins().first().bits, bits);
}

void FigureTest::labelsStayInTheBox() {
    const PortFigure figure(QStringLiteral("link0"), manyPins(60));
    for (const PortFigure::Pin& pin : figure.pins()) {
        QVERIFY(figure.box().contains(pin.label));
        QVERIFY(pin.line.x2() > 0.0 && pin.line.x2() < figure.size().width());
    }
    QVERIFY(QRectF(QPointF(0, 0), figure.size()).contains(figure.box()));
}

void FigureTest::nothingOverlaps_data() {
    QTest::addColumn<int>("count");
    for (const int count : {1, 2, 27, 300}) {
        QTest::addRow("%d pins", count) << count;
    }
}

void FigureTest::nothingOverlaps() {
    QFETCH(int, count);
    const PortFigure figure(QStringLiteral("link0"), manyPins(count));
    QCOMPARE(figure.pins().size(), count);
    for (int i = 0; i < count; ++i) {
        for (int j = i + 1; j < count; ++j) {
            QVERIFY(!figure.pins().at(i).label.intersects(figure.pins().at(j).label));
        }
    }
}

void FigureTest::emptyList() {
    const PortFigure figure(QStringLiteral("link0"), {});
    QVERIFY(figure.pins().isEmpty());
    QVERIFY(figure.box().width() > 50 && figure.box().height() > 20);
    QCOMPARE(svgTexts(figure.svg()).contains(QStringLiteral("link0")), true);
    QVERIFY(!PortFigure().svg().isEmpty());
}

void FigureTest::longModuleNameFits() {
    const QString name(64, QLatin1Char('m'));
    const PortFigure figure(name, {});
    QFont font(QStringLiteral("DejaVu Sans Mono"));
    font.setPixelSize(13);
    font.setBold(true);
    QVERIFY(QFontMetricsF(font).horizontalAdvance(name) < figure.box().width());
}

void FigureTest::svgHoldsEveryName() {
    const QList<PinFigure> pins = manyPins(300);
    const QStringList texts = svgTexts(PortFigure(QStringLiteral("link0"), pins).svg());
    QVERIFY(!texts.isEmpty());
    for (const PinFigure& pin : pins) {
        QVERIFY2(texts.contains(pin.name()), qPrintable(pin.name()));
    }
    QVERIFY(texts.contains(QStringLiteral("link0")));
}

void FigureTest::svgEscapesNames() {
    const QString name = QStringLiteral("a<b>&\"c");
    const PortFigure figure(QStringLiteral("m&<m>"), {output(name)});
    QVERIFY(svgTexts(figure.svg()).contains(name));
}

void FigureTest::busIsThick() {
    const auto inked = [](bool bus) {
        const PortFigure figure(QStringLiteral("m"), {output(QStringLiteral("p"), bus)});
        const QImage image = QImage::fromData(figure.png(1.0), "PNG");
        const QLineF line = figure.pins().first().line;
        int rows = 0;
        for (int y = int(line.y1()) - 6; y <= int(line.y1()) + 6; ++y) {
            rows += qGray(image.pixel(int(line.x1()) + 8, y)) < 200 ? 1 : 0;
        }
        return rows;
    };
    QVERIFY(inked(false) >= 1);
    QVERIFY(inked(true) >= inked(false) + 1);
}

void FigureTest::sameBytesEachTime() {
    const PortFigure one(QStringLiteral("link0"), manyPins(27));
    const PortFigure other(QStringLiteral("link0"), manyPins(27));
    QCOMPARE(one.svg(), other.svg());
    QCOMPARE(one.png(), other.png());
}

void FigureTest::pngShowsTheFigure() {
    const PortFigure figure(QStringLiteral("link0"), manyPins(27));
    const QImage image = QImage::fromData(figure.png(2.0), "PNG");
    QCOMPARE(image.size(), (figure.size() * 2).toSize());
    QCOMPARE(image.pixelColor(0, 0), QColor(Qt::white));
    QVERIFY(qGray(image.pixel((figure.box().topLeft() * 2).toPoint())) < 160); // the frame
}

void FigureTest::files() {
    const QTemporaryDir dir;
    const PortFigure figure(QStringLiteral("link0"), manyPins(5));
    QString error;
    QVERIFY(figure.toSvg(dir.filePath(QStringLiteral("f.svg")), &error));
    QVERIFY(figure.toPng(dir.filePath(QStringLiteral("f.png"))));
    QFile svg(dir.filePath(QStringLiteral("f.svg")));
    QVERIFY(svg.open(QIODevice::ReadOnly));
    QCOMPARE(svg.readAll(), figure.svg());
    QVERIFY(!QImage(dir.filePath(QStringLiteral("f.png"))).isNull());
}

void FigureTest::refusedFile() {
    QString error;
    QVERIFY(!PortFigure().toSvg(QStringLiteral("/nowhere/at/all/f.svg"), &error));
    QVERIFY(!error.isEmpty());
    QVERIFY(!PortFigure().toPng(QStringLiteral("/nowhere/at/all/f.png")));
}

void FigureTest::viewFitsAndZooms() {
    FigureView view;
    view.resize(400, 300);
    view.setFigure(QStringLiteral("link0"), manyPins(12));
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    QTest::qWait(0);
    const double fitted = view.scale();
    QVERIFY(view.figure().size().width() * fitted <= view.viewport()->width() + 1);

    QTest::keyClick(&view, Qt::Key_Plus);
    QVERIFY(qFuzzyCompare(view.scale(), fitted * 1.25));
    QTest::keyClick(&view, Qt::Key_Minus);
    QVERIFY(qFuzzyCompare(view.scale(), fitted));

    QWheelEvent wheel(QPointF(50, 50), view.viewport()->mapToGlobal(QPoint(50, 50)), QPoint(),
                      QPoint(0, 120), Qt::NoButton, Qt::ControlModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(view.viewport(), &wheel);
    QVERIFY(qFuzzyCompare(view.scale(), fitted * 1.25));

    for (int i = 0; i < 50; ++i) {
        view.zoomIn();
    }
    QVERIFY(view.scale() <= 4.0);
    view.resize(420, 300); // a zoom that the user chose survives a resize
    QVERIFY(view.scale() >= 3.9);
    QTest::keyClick(&view, Qt::Key_0);
    QVERIFY(view.scale() < 2.0);
}

void FigureTest::viewScrollsWhatDoesNotFit() {
    FigureView view;
    view.resize(400, 300);
    view.setFigure(QStringLiteral("link0"), manyPins(300));
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    QTest::qWait(0);
    const double shown = view.figure().size().height() * view.scale();
    QVERIFY(view.scale() >= 0.6);
    QCOMPARE(view.verticalScrollBar()->maximum() + view.verticalScrollBar()->pageStep(),
             static_cast<int>(std::ceil(shown)));

    QTest::mousePress(view.viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(100, 200));
    QMouseEvent drag(QEvent::MouseMove, QPoint(100, 150), Qt::NoButton, Qt::LeftButton,
                     Qt::NoModifier);
    QApplication::sendEvent(view.viewport(), &drag);
    QCOMPARE(view.verticalScrollBar()->value(), 50);

    view.setFigure(QStringLiteral("link0"), {});
    QTest::qWait(0);
    QCOMPARE(view.verticalScrollBar()->maximum(), 0);
}

void FigureTest::viewPaintsBothThemes() {
    for (const bool dark : {false, true}) {
        FigureView view;
        QPalette palette;
        palette.setColor(QPalette::Base, dark ? QColor(30, 30, 30) : QColor(Qt::white));
        palette.setColor(QPalette::Text, dark ? QColor(Qt::white) : QColor(Qt::black));
        view.setPalette(palette);
        view.resize(400, 300);
        view.setFigure(QStringLiteral("link0"), manyPins(6));
        const QImage image = view.grab().toImage();
        int contrasting = 0;
        for (int x = 0; x < image.width(); ++x) {
            for (int y = 0; y < image.height(); ++y) {
                const bool light = qGray(image.pixel(x, y)) > 128;
                contrasting += light == dark ? 1 : 0;
            }
        }
        QVERIFY(contrasting > 300); // lines and names stand out from the ground
        QVERIFY(contrasting < image.width() * image.height() / 2);
    }
}

QTEST_MAIN(FigureTest)
#include "figure_test.moc"

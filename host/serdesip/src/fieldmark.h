#pragma once

#include <QWidget>

namespace IPSERDESIP {

/// A thin coloured bar at the left edge of a field that says: this is not the default. It lies
/// over the page, so that its coming and going moves nothing.
class FieldMark : public QWidget {
    Q_OBJECT

public:
    explicit FieldMark(QWidget* field);

    /// Follows the field's place, and stays in front.
    void follow();

Q_SIGNALS:
    void pressed();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    QWidget* m_field;
};

} // namespace IPSERDESIP

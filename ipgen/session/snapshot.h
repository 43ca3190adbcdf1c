#pragma once

#include <QVariant>

class QWidget;

namespace IPSERDESIP {
class DialogView;
class protocolGenDlg;
} // namespace IPSERDESIP

namespace Ipgen::Session {

/// The Qt class that snapshots name for a widget (a subclass counts as what it extends); null for
/// a widget that they leave out.
const char* plainClass(const QWidget* widget);

/// What a page's named fields, buttons, labels and group boxes show, by object name. Of several
/// objects of one name, the first that would show stands for it.
QVariantMap snapshotOfPage(const QWidget* page);

/// The same of all pages of a dialog, by the names that scripts use.
QVariantMap snapshotOf(const IPSERDESIP::DialogView& view);

/// The pins that a dialog's port figure shows, in order.
QVariantList figureOf(const IPSERDESIP::protocolGenDlg& dialog);

} // namespace Ipgen::Session

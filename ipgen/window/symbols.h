#pragma once

#include <QIcon>

namespace Window {

/// The window's own pictures, drawn in the palette's colours at any size: sharp on every screen,
/// right in both themes, and no picture file is read.
enum class Symbol {
    New,
    Open,
    Create,
    Configure,
    Check,
    Generate,
    GenerateAll,
    Remove,
    Print,
    Good,
    OutOfDate,
    Pending,
    Warning,
    Error,
    Information,
    Close,
    More,
};

QIcon symbolIcon(Symbol symbol);

} // namespace Window

#include "platform/pointer.h"

#include <QCursor>
#include <QGuiApplication>

namespace torvane {

Qt::CursorShape shapeOf(Pointer pointer)
{
    switch (pointer) {
    case Pointer::Hourglass:
        return Qt::WaitCursor;
    case Pointer::Crosshair:
        return Qt::CrossCursor;
    case Pointer::SizeAll:
        return Qt::SizeAllCursor;
    case Pointer::Default:
        break;
    }
    return Qt::ArrowCursor;
}

HourglassPointer::HourglassPointer()
{
    setPointer(Pointer::Hourglass);
}

HourglassPointer::~HourglassPointer()
{
    setPointer(Pointer::Default);
}

void setPointer(Pointer pointer)
{
    // The override cursors of Qt are a stack; one entry at most is ours.
    const bool overridden = QGuiApplication::overrideCursor() != nullptr;
    if (pointer == Pointer::Default) {
        if (overridden) {
            QGuiApplication::restoreOverrideCursor();
        }
        return;
    }
    if (overridden) {
        QGuiApplication::changeOverrideCursor(shapeOf(pointer));
    } else {
        QGuiApplication::setOverrideCursor(shapeOf(pointer));
    }
}

} // namespace torvane

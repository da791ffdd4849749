#pragma once

#include <QColor>
#include <QPalette>

// The colours of status texts and of field backgrounds.
class Colors
{
public:
    static QColor action();
    static QColor error();
    static QColor errorDisabled();
    static QColor warning();
    static QColor minor();
    static QColor minorDisabled();
    static QColor ok();
    static QColor requiredBg();
    static QColor errorBg();
    static QColor warningBg();
    static QColor okBg();

    // Copies with the background of fields coloured, for the active and the inactive group.
    static QPalette makeRequired(const QPalette &palette);
    static QPalette makeError(const QPalette &palette);
    static QPalette makeWarning(const QPalette &palette);
    static QPalette makeOK(const QPalette &palette);
};

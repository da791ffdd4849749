#include "hmenu.h"

HMenu::HMenu(QWidget *parent) : HMenu(QString(), parent) {}

HMenu::HMenu(const QString &title, QWidget *parent) : QMenu(title, parent)
{
    setToolTipsVisible(true);
}

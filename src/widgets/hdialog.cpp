#include "hdialog.h"

#include "summon.h"

#include <QShowEvent>

HDialog::HDialog(QWidget *parent, Qt::WindowFlags flags) : QDialog(parent, flags) {}

void HDialog::showEvent(QShowEvent *event)
{
    if (!event->spontaneous())
        summon(this);
    QDialog::showEvent(event);
}

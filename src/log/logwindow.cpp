#include "logwindow.h"

#include "widgets/htextedit.h"

#include <QSpinBox>

Log::Window::Window(EntryList &list, QWidget *parent)
    : QWidget(parent), m_list(list), m_levelSpin(new QSpinBox(this)), m_text(new HTextEdit(this))
{
}

void Log::Window::setVisible(bool visible)
{
    QWidget::setVisible(visible);
}

void Log::Window::appended() {}

void Log::Window::levelChanged(int) {}

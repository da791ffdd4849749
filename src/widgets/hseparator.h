#pragma once

#include <QFrame>

// A line between groups of widgets.
class HSeparator : public QFrame
{
    Q_OBJECT

public:
    explicit HSeparator(QWidget *parent = nullptr);
    explicit HSeparator(Qt::Orientation orientation, QWidget *parent = nullptr);
};

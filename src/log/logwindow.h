#pragma once

#include "log.h"

#include <QWidget>

class HTextEdit;
class QSpinBox;

namespace Log {

// Shows a list of entries as coloured text, as far as the detail level lets them through. Hidden it
// costs nothing: it then holds no text and does not listen.
class Window : public QWidget
{
    Q_OBJECT

public:
    explicit Window(EntryList &list, QWidget *parent = nullptr);

    void setVisible(bool visible) override;

public Q_SLOTS:
    void appended();
    void levelChanged(int level);

private:
    EntryList &m_list;
    QSpinBox *m_levelSpin;
    HTextEdit *m_text;
    qsizetype m_shownCount = 0;
};

} // namespace Log

#include "optionsedit.h"

#include "kivvet/kivvet.h"

namespace RepoEditor {

OptionsEdit::OptionsEdit(int rows, int columns, QWidget *parent)
    : PasswdTextEdit(Repo::Kivvet::urlsRegExp(), rows, columns, parent)
{
}

} // namespace RepoEditor

#include "webbrowser.h"

#include "app/execute.h"
#include "app/share.h"
#include "messagebox.h"

#include <QCoreApplication>
#include <QFile>

namespace {

class WebBrowserTexts
{
    Q_DECLARE_TR_FUNCTIONS(WebBrowser)
};

} // namespace

void WebBrowser::open(QWidget *parent, const QString &address)
{
    QByteArray program = QFile::encodeName(Share::absolute(QStringLiteral("webbrowser")));
    QByteArray check = "--check";
    QByteArray argument = address.toUtf8();
    char *question[] = {program.data(), check.data(), argument.data(), nullptr};
    QString reason;
    if (!Execute::ask(question, reason)) {
        showMessageBox(
            QMessageBox::Critical, parent, WebBrowserTexts::tr("Browse"),
            WebBrowserTexts::tr("The address cannot be opened:\n%1\n\n%2").arg(address, reason));
        return;
    }
    char *command[] = {program.data(), argument.data(), nullptr};
    Execute::execute(parent, command);
}

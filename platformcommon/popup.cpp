#include "ZMessageDlg.h"
#include "ZPopup.h"

#include "journal.h"

#include <QDialogButtonBox>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QTimer>
#include <QVBoxLayout>

namespace {

// Not in tests and batch runs on the offscreen or minimal platforms, nor
// without any application.
bool hasRealWindowSystem()
{
    if (!qobject_cast<QGuiApplication *>(QCoreApplication::instance()))
        return false;
    const QString platform = QGuiApplication::platformName();
    return platform != QLatin1String("offscreen") && platform != QLatin1String("minimal");
}

// The phone's screen, which a notice never outgrows.
constexpr QSize PhoneScreen(240, 320);

// The title icon beside the title, the text below, and an OK button: the
// title stands in the dialog too, as a phone without title bars shows it.
void buildContents(QDialog *dialog, const QPixmap &titleIcon, const QString &title,
                   const QString &text)
{
    dialog->setWindowTitle(title);
    auto *heading = new QHBoxLayout;
    if (!titleIcon.isNull()) {
        dialog->setWindowIcon(QIcon(titleIcon));
        auto *icon = new QLabel(dialog);
        icon->setPixmap(titleIcon);
        heading->addWidget(icon);
    }
    auto *titleLabel = new QLabel(title, dialog);
    QFont bold = titleLabel->font();
    bold.setBold(true);
    titleLabel->setFont(bold);
    heading->addWidget(titleLabel, 1);

    auto *label = new QLabel(text, dialog);
    label->setWordWrap(true);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok, dialog);
    QObject::connect(buttons, &QDialogButtonBox::accepted, dialog, &QDialog::accept);

    auto *layout = new QVBoxLayout(dialog);
    layout->addLayout(heading);
    layout->addWidget(label, 1);
    layout->addWidget(buttons);
    // A top-level window does not ask its layout for the wrapped text's
    // height at a given width: the text is measured at the phone's width.
    const QMargins margins = layout->contentsMargins();
    label->setMinimumHeight(label->heightForWidth(PhoneScreen.width() - margins.left() - margins.right()));
    dialog->setFixedWidth(PhoneScreen.width());
    dialog->setMaximumHeight(PhoneScreen.height());
    dialog->adjustSize();
}

} // namespace

// ----- ZPopup -----------------------------------------------------------------

// What a notice shows; ZMessageDlg fills in its title, text and type.
struct ZPopup::Data
{
    QPixmap titleIcon;
    QString title;
    QString text;
    int type = 0;
    int timeout = 0; // seconds; 0 waits for the user
    bool contentsBuilt = false;
};

ZPopup::ZPopup(QWidget *parent, const char *name, bool modal, Qt::WindowFlags flags)
    : QDialog(parent, flags), d(std::make_unique<Data>())
{
    if (name)
        setObjectName(QString::fromLatin1(name));
    setModal(modal);
}

ZPopup::~ZPopup() = default;

void ZPopup::setTitleIcon(const QPixmap &icon)
{
    d->titleIcon = icon;
}

int ZPopup::exec()
{
    const QString title = d->title.isNull() ? windowTitle() : d->title;
    if (KivSim::Journal::enabled()) {
        KivSim::Journal::Line("ZPopup::exec")
            .arg("title", title)
            .arg("text", d->text)
            .arg("type", d->type)
            .write();
    }
    // Dialogs block only where a person can answer them.
    if (!hasRealWindowSystem()) {
        setResult(QDialog::Accepted);
        return QDialog::Accepted;
    }
    if (!d->contentsBuilt)
        buildContents(this, d->titleIcon, title, d->text);
    d->contentsBuilt = true;
    if (d->timeout > 0)
        QTimer::singleShot(d->timeout * 1000, this, &QDialog::accept);
    return QDialog::exec();
}

// ----- ZMessageDlg --------------------------------------------------------------

ZMessageDlg::ZMessageDlg(const QString &title, const QString &text, int type, int timeout,
                         QWidget *parent, const char *name, bool modal, Qt::WindowFlags flags,
                         int display)
    : ZPopup(parent, name, modal, flags)
{
    Q_UNUSED(display); // which of the phone's displays; the desktop has one
    d->title = title;
    d->text = text;
    d->type = type;
    d->timeout = timeout;
}

ZMessageDlg::~ZMessageDlg() = default;

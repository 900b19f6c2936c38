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

// Dialogs block only where a person can answer them: not in tests and batch
// runs on the offscreen or minimal platforms, nor without any application.
bool hasRealWindowSystem()
{
    if (!qobject_cast<QGuiApplication *>(QCoreApplication::instance()))
        return false;
    const QString platform = QGuiApplication::platformName();
    return platform != QLatin1String("offscreen") && platform != QLatin1String("minimal");
}

} // namespace

// ----- ZPopup -----------------------------------------------------------------

ZPopup::ZPopup(QWidget *parent, const char *name, bool modal, Qt::WindowFlags flags)
    : QDialog(parent, flags)
{
    if (name)
        setObjectName(QString::fromLatin1(name));
    setModal(modal);
}

ZPopup::~ZPopup() = default;

void ZPopup::setTitleIcon(const QPixmap &icon)
{
    m_titleIcon = icon;
}

int ZPopup::exec()
{
    if (KivSim::Journal::enabled()) {
        KivSim::Journal::Line("ZPopup::exec")
            .arg("title", popupTitle())
            .arg("text", popupText())
            .arg("type", popupType())
            .write();
    }
    if (!hasRealWindowSystem()) {
        setResult(QDialog::Accepted);
        return QDialog::Accepted;
    }
    buildContents();
    return QDialog::exec();
}

QString ZPopup::popupTitle() const
{
    return windowTitle();
}

QString ZPopup::popupText() const
{
    return QString();
}

int ZPopup::popupType() const
{
    return 0;
}

void ZPopup::buildContents()
{
    if (m_contentsBuilt)
        return;
    m_contentsBuilt = true;
    setWindowTitle(popupTitle());
    if (!m_titleIcon.isNull())
        setWindowIcon(QIcon(m_titleIcon));

    auto *message = new QHBoxLayout;
    if (!m_titleIcon.isNull()) {
        auto *icon = new QLabel(this);
        icon->setPixmap(m_titleIcon);
        icon->setAlignment(Qt::AlignTop);
        message->addWidget(icon);
    }
    auto *text = new QLabel(popupText(), this);
    text->setWordWrap(true);
    message->addWidget(text, 1);

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);

    auto *layout = new QVBoxLayout(this);
    layout->addLayout(message);
    layout->addWidget(buttons);
}

// ----- ZMessageDlg --------------------------------------------------------------

ZMessageDlg::ZMessageDlg(const QString &title, const QString &text, int type, int timeout,
                         QWidget *parent, const char *name, bool modal, Qt::WindowFlags flags,
                         int display)
    : ZPopup(parent, name, modal, flags), m_title(title), m_text(text), m_type(type),
      m_timeout(timeout)
{
    Q_UNUSED(display); // which of the phone's displays; the desktop has one
}

ZMessageDlg::~ZMessageDlg() = default;

QString ZMessageDlg::popupTitle() const
{
    return m_title;
}

QString ZMessageDlg::popupText() const
{
    return m_text;
}

int ZMessageDlg::popupType() const
{
    return m_type;
}

void ZMessageDlg::showEvent(QShowEvent *event)
{
    ZPopup::showEvent(event);
    if (m_timeout > 0)
        QTimer::singleShot(m_timeout * 1000, this, &QDialog::accept);
}

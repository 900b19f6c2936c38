#include "translation.h"

#include <QCoreApplication>
#include <QLocale>
#include <QTranslator>

namespace Tambro {

QString translate(const char *context, const char *resourceId, const char *english)
{
    const QString text = QCoreApplication::translate(context, resourceId, english);
    // Without a catalogue Qt hands the resource id back; the user must see English.
    if (text == QLatin1String(resourceId))
        return QString::fromUtf8(english);
    return text;
}

QString translateLatin1(const QString &text, const QString &comment)
{
    // The catalogue's source texts are UTF-8; characters beyond Latin-1 become
    // '?' on the way, as they would in the file.
    const QByteArray source = QString::fromLatin1(text.toLatin1()).toUtf8();
    const QByteArray disambiguation = QString::fromLatin1(comment.toLatin1()).toUtf8();
    return QCoreApplication::translate("QObject", source.constData(), disambiguation.constData());
}

} // namespace Tambro

namespace {

// Installs the library's catalogue for the user's language, English when
// there is none, as soon as the application object exists.
void loadCatalogues()
{
    const QString folder = QStringLiteral(":/kivtambro-base/i18n");
    auto *translator = new QTranslator(QCoreApplication::instance());
    if (translator->load(QLocale(), QStringLiteral("kivtambro_base"), QStringLiteral("_"), folder)
        || translator->load(QStringLiteral("kivtambro_base_en"), folder)) {
        QCoreApplication::installTranslator(translator);
    } else {
        delete translator;
    }
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(loadCatalogues)

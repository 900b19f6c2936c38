#include "list_view_picture.h"

#include <TAMBRO_Global.h>
#include <TAMBRO_ListView.h>

#include <QFontMetrics>
#include <QPainter>

namespace {

// A QVGA phone screen, with its list rows sized for 16-pixel icons.
constexpr int ScreenWidth = 240;
constexpr int ScreenHeight = 320;
constexpr int TitleHeight = 26;
constexpr int RowHeight = 22;
constexpr int IconSize = 16;
constexpr int Margin = 4;

const QColor TitleBackground(0x2b, 0x4c, 0x7e);
const QColor RowBackground(Qt::white);
const QColor AlternateRowBackground(0xee, 0xf2, 0xf8);
const QColor Separator(0xd0, 0xd8, 0xe4);
const QColor SizeText(0x55, 0x5f, 0x6d);

void drawTitle(QPainter &painter, const QString &title)
{
    painter.fillRect(0, 0, ScreenWidth, TitleHeight, TitleBackground);
    QFont font = painter.font();
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(Qt::white);
    const QRect area(Margin, 0, ScreenWidth - 2 * Margin, TitleHeight);
    painter.drawText(area, Qt::AlignVCenter | Qt::AlignLeft,
                     QFontMetrics(font).elidedText(title, Qt::ElideRight, area.width()));
    font.setBold(false);
    painter.setFont(font);
}

void drawRow(QPainter &painter, int top, const TAMBRO_ListView &listing, int index)
{
    painter.fillRect(0, top, ScreenWidth, RowHeight,
                     index % 2 ? AlternateRowBackground : RowBackground);
    painter.setPen(Separator);
    painter.drawLine(0, top + RowHeight - 1, ScreenWidth, top + RowHeight - 1);
    const QPixmap icon = TAMBRO_Global::getIcon(listing.smallIcon(index));
    const QRect iconArea(Margin, top + (RowHeight - IconSize) / 2, IconSize, IconSize);
    if (!icon.isNull())
        painter.drawPixmap(iconArea, icon);
    QRect textArea(iconArea.right() + 1 + Margin, top, ScreenWidth - iconArea.right() - 1 - 2 * Margin, RowHeight);
    const QString sizeText = listing.sizeText(index);
    if (!sizeText.isEmpty()) { // right-aligned, the name gives way to it
        painter.setPen(SizeText);
        painter.drawText(textArea, Qt::AlignVCenter | Qt::AlignRight, sizeText);
        textArea.setRight(textArea.right() - painter.fontMetrics().horizontalAdvance(sizeText) - Margin);
    }
    painter.setPen(Qt::black);
    painter.drawText(textArea, Qt::AlignVCenter | Qt::AlignLeft,
                     painter.fontMetrics().elidedText(listing.shownName(index), Qt::ElideRight, textArea.width()));
}

// A thin bar at the right edge telling how much of the list the screen shows.
void drawScrollIndicator(QPainter &painter, int shown, int total)
{
    const int trackHeight = ScreenHeight - TitleHeight;
    const int barHeight = std::max(8, trackHeight * shown / total);
    painter.fillRect(ScreenWidth - 3, TitleHeight, 3, barHeight, TitleBackground);
}

} // namespace

QImage drawListView(const TAMBRO_ListView &listing)
{
    QImage screen(ScreenWidth, ScreenHeight, QImage::Format_RGB32);
    screen.fill(RowBackground);
    QPainter painter(&screen);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    drawTitle(painter, listing.title());
    const int rowsThatFit = (ScreenHeight - TitleHeight) / RowHeight;
    const int shown = std::min(rowsThatFit, listing.count());
    for (int i = 0; i < shown; ++i)
        drawRow(painter, TitleHeight + i * RowHeight, listing, i);
    if (shown < listing.count())
        drawScrollIndicator(painter, shown, listing.count());
    return screen;
}

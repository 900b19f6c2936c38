// Draws the simulated platform's built-in icon set and writes every icon, as
// PNG data under its icon name (the ".gif" names too: the icon reader decodes
// by content), into the folder given on the command line. Each picture is made
// of vector shapes on a 16-unit grid, scaled to its icon's size; list-size
// icons leave out the fine detail. The files carry no timestamps, so a second
// run gives byte-identical files. After changing a picture, regenerate the
// committed set from the source root with
//   cmake --build build --target kivsim_draw_icons && build/simplatform/icons/draw/kivsim_draw_icons simplatform/icons

#include "types/icon_names.h"

#include <QDir>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QPainterPathStroker>

#include <cmath>
#include <cstdio>
#include <functional>
#include <initializer_list>
#include <vector>

namespace {

// Pixel sizes: thumbnail views, list rows, and the title of a notice.
constexpr int Big = 40;
constexpr int Small = 16;
constexpr int Notice = 32;

namespace Colour {
const QColor ink(0x3b, 0x46, 0x50);
const QColor steel(0x60, 0x6c, 0x76);
const QColor pencil(0x8a, 0x96, 0xa0);
const QColor fold(0xd5, 0xdc, 0xe2);
const QColor paper(0xff, 0xff, 0xff);
const QColor manila(0xf5, 0xc3, 0x50);
const QColor manilaShade(0xdc, 0x9f, 0x32);
const QColor navy(0x2b, 0x4a, 0x7e);
const QColor blue(0x2d, 0x7f, 0xd3);
const QColor sky(0x8c, 0xcb, 0xf5);
const QColor green(0x3d, 0xa1, 0x44);
const QColor red(0xd8, 0x34, 0x2b);
const QColor gold(0xf2, 0xb7, 0x05);
const QColor lamp(0xff, 0xdc, 0x4a);
const QColor purple(0x82, 0x56, 0xc8);
} // namespace Colour

// A painter on the 16-unit grid that every picture is designed on.
class Canvas
{
public:
    explicit Canvas(QImage &image) : m_painter(&image), m_unit(image.width() / 16.0)
    {
        m_painter.setRenderHint(QPainter::Antialiasing);
        m_painter.scale(m_unit, m_unit);
    }

    // Fine detail only where there are the pixels to show it.
    bool detailed() const { return m_unit * 16 >= 20; }

    // A length given in pixels, in grid units.
    qreal pixels(qreal count) const { return count / m_unit; }

    // An edge is one pixel wide in a list row, one and a half elsewhere.
    qreal hairline() const { return pixels(detailed() ? 1.5 : 1.0); }

    void fill(const QPainterPath &path, const QColor &colour) { m_painter.fillPath(path, colour); }

    void edge(const QPainterPath &path, const QColor &colour)
    {
        m_painter.strokePath(path, QPen(colour, hairline(), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    }

    void shape(const QPainterPath &path, const QColor &colour, const QColor &edgeColour)
    {
        fill(path, colour);
        edge(path, edgeColour);
    }

    // Coloured shapes are edged in a darker shade of their own colour.
    void shape(const QPainterPath &path, const QColor &colour) { shape(path, colour, colour.darker(150)); }

    void line(QPointF from, QPointF to, const QColor &colour, qreal width)
    {
        m_painter.setPen(QPen(colour, width, Qt::SolidLine, Qt::FlatCap));
        m_painter.drawLine(from, to);
    }

    void dashed(const QPainterPath &path, const QColor &colour, qreal width)
    {
        QPen pen(colour, width, Qt::CustomDashLine, Qt::FlatCap, Qt::RoundJoin);
        pen.setDashPattern({2.0, 1.2});
        m_painter.strokePath(path, pen);
    }

    // Draws a picture shrunk into a square box of the grid, as an emblem.
    void inset(const QRectF &box, const std::function<void(Canvas &)> &draw)
    {
        const qreal scale = box.width() / 16;
        const qreal unit = m_unit;
        m_painter.save();
        m_painter.translate(box.topLeft());
        m_painter.scale(scale, scale);
        m_unit *= scale;
        draw(*this);
        m_unit = unit;
        m_painter.restore();
    }

private:
    QPainter m_painter;
    qreal m_unit; // pixels per grid unit
};

using Picture = std::function<void(Canvas &)>;

QPainterPath polygon(const QPolygonF &points)
{
    QPainterPath path;
    path.addPolygon(points);
    path.closeSubpath();
    return path;
}

QPainterPath polygon(std::initializer_list<QPointF> points)
{
    return polygon(QPolygonF(points));
}

QPainterPath box(qreal left, qreal top, qreal right, qreal bottom, qreal radius = 0)
{
    QPainterPath path;
    path.addRoundedRect(QRectF(QPointF(left, top), QPointF(right, bottom)), radius, radius);
    return path;
}

QPainterPath circle(qreal x, qreal y, qreal radius)
{
    QPainterPath path;
    path.addEllipse(QPointF(x, y), radius, radius);
    return path;
}

QPainterPath ellipse(qreal x, qreal y, qreal rx, qreal ry)
{
    QPainterPath path;
    path.addEllipse(QPointF(x, y), rx, ry);
    return path;
}

// Overlapping parts as one outline, so that no edge runs through the inside.
QPainterPath merged(std::initializer_list<QPainterPath> parts)
{
    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    for (const QPainterPath &part : parts)
        path.addPath(part);
    return path.simplified();
}

// A stroke as an area of its own, to be filled and edged like any shape.
QPainterPath thick(const QPainterPath &centre, qreal width, Qt::PenCapStyle cap = Qt::RoundCap)
{
    QPainterPathStroker stroker;
    stroker.setWidth(width);
    stroker.setCapStyle(cap);
    stroker.setJoinStyle(Qt::RoundJoin);
    return stroker.createStroke(centre).simplified();
}

QPainterPath star(QPointF centre, qreal outer, qreal inner)
{
    QPolygonF points;
    for (int i = 0; i < 10; ++i) {
        const qreal angle = M_PI * (i / 5.0 - 0.5);
        const qreal radius = i % 2 ? inner : outer;
        points << centre + QPointF(radius * std::cos(angle), radius * std::sin(angle));
    }
    return polygon(points);
}

// A head and the shoulders under it.
QPainterPath person(qreal x, qreal top, qreal size)
{
    const QPainterPath shoulders = ellipse(x, top + size * 1.05, size * 0.5, size * 0.42)
                                       .intersected(box(x - size, top, x + size, top + size * 1.05));
    return merged({circle(x, top + size * 0.25, size * 0.25), shoulders});
}

// --- Sheets and folders, the bases that marks and emblems go on ---

void page(Canvas &c)
{
    c.shape(polygon({{2.5, 0.5}, {10, 0.5}, {13.5, 4}, {13.5, 15.5}, {2.5, 15.5}}), Colour::paper,
            Colour::steel);
    c.shape(polygon({{10, 0.5}, {10, 4}, {13.5, 4}}), Colour::fold, Colour::steel);
}

// Lines of writing from the given height down.
void writing(Canvas &c, qreal top, qreal bottom)
{
    // Never closer than a pixel apart, or the lines run into a grey block.
    const qreal step = c.detailed() ? 1.6 : c.pixels(2);
    const qreal width = c.detailed() ? 0.7 : c.pixels(1);
    for (qreal y = top; y <= bottom; y += step) {
        // Short beside the folded corner and at the end of the paragraph.
        const qreal right = y < 4.5 ? 9 : (y + step > bottom ? 9.5 : 11.5);
        c.line({4.5, y}, {right, y}, Colour::pencil, width);
    }
}

Picture onPage(const Picture &mark)
{
    return [mark](Canvas &c) {
        page(c);
        mark(c);
    };
}

void folder(Canvas &c)
{
    c.shape(polygon({{0.5, 14.5}, {0.5, 2.5}, {5.5, 2.5}, {7, 4}, {15.5, 4}, {15.5, 14.5}}),
            Colour::manilaShade);
    c.shape(box(0.5, 6, 15.5, 14.5, 0.6), Colour::manila);
}

Picture folderWith(const Picture &emblem)
{
    return [emblem](Canvas &c) {
        folder(c);
        c.inset(QRectF(3.5, 5.5, 9, 9), emblem);
    };
}

// --- Marks on a page ---

void textMark(Canvas &c)
{
    writing(c, 2.5, 13.5);
}

// A "no entry" ring: the phone has nothing to open the file with.
void noHandlerMark(Canvas &c)
{
    const QPainterPath ring = thick(circle(8, 9.5, 3.4), 1.4);
    QPainterPath slash(QPointF(5.6, 7.1));
    slash.lineTo(10.4, 11.9);
    const QPainterPath bar = thick(slash, 1.4, Qt::FlatCap);
    c.fill(merged({ring, bar}), Colour::red);
}

void questionMark(Canvas &c)
{
    const QRectF bow(5.4, 3.6, 5.2, 5.2);
    QPainterPath hook;
    hook.arcMoveTo(bow, 165);
    hook.arcTo(bow, 165, -225);
    hook.lineTo(8, 9.6);
    hook.lineTo(8, 10.6);
    c.fill(merged({thick(hook, 1.7), circle(8, 13, 1.05)}), Colour::blue);
}

// A few lines and a rosette seal: a file that some application takes.
void sealMark(Canvas &c)
{
    writing(c, 2.5, 6.5);
    c.shape(polygon({{7.2, 11}, {6.2, 15.5}, {7.8, 14.7}, {8.8, 15.8}, {9.8, 11.5}}), Colour::red);
    c.shape(polygon({{10.2, 11.5}, {11.2, 15.8}, {12.2, 14.7}, {13.8, 15.5}, {12.8, 11}}), Colour::red);
    c.shape(star({10, 10.5}, 3.6, 2.9), Colour::gold);
    if (c.detailed())
        c.edge(circle(10, 10.5, 1.8), Colour::gold.darker(150));
}

// --- Pictures that stand alone or serve as emblems ---

void musicNote(Canvas &c)
{
    c.shape(merged({ellipse(4.4, 12.6, 2.6, 2), ellipse(11.4, 11.1, 2.6, 2), box(5.9, 3.2, 7, 12.6),
                    box(12.9, 1.7, 14, 11.1), polygon({{5.9, 2.8}, {14, 0.8}, {14, 3.4}, {5.9, 5.4}})}),
            Colour::purple);
}

void photo(Canvas &c)
{
    const QPainterPath frame = box(0.5, 2.5, 15.5, 13.5);
    c.fill(frame, Colour::sky);
    c.fill(circle(11.3, 6, 1.8), Colour::gold);
    c.fill(polygon({{1, 13}, {5.8, 6.8}, {10.6, 13}}), Colour::green);
    c.fill(polygon({{7, 13}, {11, 8.8}, {15, 13}}), Colour::green.darker(120));
    c.edge(frame, Colour::ink);
}

void filmStrip(Canvas &c)
{
    c.shape(box(0.5, 2, 15.5, 14, 0.5), Colour::ink, Colour::ink);
    c.fill(box(1.8, 5, 7.4, 11), Colour::sky);
    c.fill(box(8.6, 5, 14.2, 11), Colour::sky);
    for (qreal x = 1.4; x < 15; x += 2.8) {
        c.fill(box(x, 3, x + 1.4, 4.2), Colour::paper);
        c.fill(box(x, 11.8, x + 1.4, 13), Colour::paper);
    }
}

// Blue cup, red steam: the colours of the Java cup.
void coffeeCup(Canvas &c)
{
    QPainterPath cup;
    cup.moveTo(2, 6.5);
    cup.lineTo(11.5, 6.5);
    cup.lineTo(10.8, 11.6);
    cup.quadTo(10.5, 13.8, 8.4, 13.8);
    cup.lineTo(5.1, 13.8);
    cup.quadTo(3, 13.8, 2.7, 11.6);
    cup.closeSubpath();
    const QPainterPath handle = thick(ellipse(11.6, 9.3, 2.4, 2), 1.4);
    c.shape(ellipse(7.2, 14.4, 6.7, 1.2), Colour::blue);
    c.shape(merged({cup, handle}), Colour::blue);
    for (qreal x : {5.0, 8.5}) {
        QPainterPath steam;
        steam.moveTo(x, 5.2);
        steam.cubicTo(x - 1.6, 3.9, x + 1.6, 2.3, x, 0.6);
        c.fill(thick(steam, 1.1), Colour::red);
    }
}

// The arrow of a download; the marks under or beside it tell how far it got.
void downArrow(Canvas &c)
{
    c.shape(merged({box(5.8, 0.5, 10.2, 6), polygon({{2.2, 5.5}, {13.8, 5.5}, {8, 11.3}})}), Colour::blue);
}

void partialDownload(Canvas &c)
{
    downArrow(c);
    c.shape(box(1, 12.5, 15, 15.5, 0.8), Colour::paper, Colour::ink);
    c.fill(box(1.5, 13, 8, 15, 0.5), Colour::green);
}

void completeDownload(Canvas &c)
{
    downArrow(c);
    c.shape(circle(11.5, 11.5, 4), Colour::green);
    QPainterPath tick;
    tick.moveTo(9.4, 11.6);
    tick.lineTo(11, 13.1);
    tick.lineTo(13.6, 9.9);
    c.fill(thick(tick, 1.4), Colour::paper);
}

void microphone(Canvas &c)
{
    QPainterPath stand;
    stand.arcMoveTo(QRectF(3, 1.5, 10, 10), 180);
    stand.arcTo(QRectF(3, 1.5, 10, 10), 180, 180);
    stand.moveTo(8, 11.5);
    stand.lineTo(8, 14.6);
    stand.moveTo(4.8, 15);
    stand.lineTo(11.2, 15);
    c.fill(thick(stand, 1.3), Colour::ink);
    c.shape(box(5, 0.5, 11, 10, 3), Colour::steel, Colour::ink);
    if (!c.detailed())
        return;
    for (qreal y : {3.2, 5.2, 7.2})
        c.line({6.3, y}, {9.7, y}, Colour::pencil, 0.6);
}

void bookmarkRibbon(Canvas &c)
{
    c.shape(polygon({{3.5, 0.5}, {12.5, 0.5}, {12.5, 15.5}, {8, 11.5}, {3.5, 15.5}}), Colour::red);
    c.shape(star({8, 6}, 3.4, 1.4), Colour::gold);
}

QPainterPath bubble(qreal left, qreal top, qreal right, qreal bottom, const QPainterPath &tail)
{
    return merged({box(left, top, right, bottom, 2.5), tail});
}

void conversation(Canvas &c)
{
    c.shape(bubble(0.5, 1, 11, 8.5, polygon({{2.5, 7.5}, {1.5, 11.2}, {6, 8}})), Colour::blue);
    c.shape(bubble(5, 6.5, 15.5, 14, polygon({{13, 13}, {14.6, 15.8}, {9.5, 13.5}})), Colour::green);
    if (!c.detailed())
        return;
    for (qreal x : {3.5, 5.75, 8.0})
        c.fill(circle(x, 4.6, 0.6), Colour::paper);
    for (qreal x : {8.0, 10.25, 12.5})
        c.fill(circle(x, 10.2, 0.6), Colour::paper);
}

void lightBulb(Canvas &c)
{
    for (int degrees : {-150, -120, -90, -60, -30}) {
        const QPointF ray(std::cos(qDegreesToRadians(degrees)), std::sin(qDegreesToRadians(degrees)));
        c.line(QPointF(8, 7) + 5.4 * ray, QPointF(8, 7) + 6.9 * ray, Colour::gold, 1);
    }
    c.shape(merged({circle(8, 7, 3.9), polygon({{5.6, 9}, {10.4, 9}, {9.8, 12}, {6.2, 12}})}), Colour::lamp,
            Colour::gold.darker(130));
    c.shape(box(6.2, 12, 9.8, 14.2, 0.4), Colour::pencil, Colour::steel);
    c.fill(box(7, 14.2, 9, 15.5, 0.6), Colour::ink);
}

// A contact: a badge-like card standing up, its person filling it.
void contactCard(Canvas &c)
{
    c.shape(box(2.5, 0.5, 13.5, 15.5, 1.5), Colour::paper, Colour::steel);
    c.fill(person(8, 3, 9), Colour::blue);
}

// A business card: lying down, a small person beside lines of text and a logo.
void businessCard(Canvas &c)
{
    c.shape(box(0.5, 2.5, 15.5, 13.5, 1), Colour::paper, Colour::steel);
    c.fill(person(4.3, 5, 5.6), Colour::steel);
    c.fill(polygon({{13, 3.8}, {14.4, 5.2}, {13, 6.6}, {11.6, 5.2}}), Colour::gold);
    c.line({8.2, 8}, {14, 8}, Colour::ink, 1);
    c.line({8.2, 10.5}, {13, 10.5}, Colour::pencil, 1);
}

void calendarPage(Canvas &c)
{
    const QPainterPath sheet = box(1.5, 2, 14.5, 15.5, 1);
    c.fill(sheet, Colour::paper);
    c.fill(sheet.intersected(box(1.5, 2, 14.5, 6)), Colour::red);
    c.edge(sheet, Colour::steel);
    for (int row = 0; row < 3; ++row) {
        for (int column = 0; column < 4; ++column) {
            const qreal x = 3 + column * 2.7;
            const qreal y = 7.6 + row * 2.6;
            c.fill(box(x, y, x + 1.6, y + 1.6), row == 1 && column == 2 ? Colour::red : Colour::pencil);
        }
    }
    c.fill(box(4, 0.5, 5.5, 3.5, 0.7), Colour::ink);
    c.fill(box(10.5, 0.5, 12, 3.5, 0.7), Colour::ink);
}

void backArrow(Canvas &c)
{
    QPainterPath bend;
    bend.moveTo(13.5, 14.5);
    bend.lineTo(13.5, 10);
    bend.quadTo(13.5, 5.5, 9, 5.5);
    bend.lineTo(6, 5.5);
    c.shape(merged({thick(bend, 3, Qt::FlatCap), polygon({{6.6, 0.5}, {6.6, 10.5}, {0.8, 5.5}})}),
            Colour::green);
}

// Two chain links in broken lines: a link that is there but not shown.
void hiddenLink(Canvas &c)
{
    for (QPointF centre : {QPointF(5.3, 10.7), QPointF(10.7, 5.3)}) {
        QPainterPath link;
        link.addRoundedRect(QRectF(-5, -2.6, 10, 5.2), 2.6, 2.6);
        c.dashed(QTransform().translate(centre.x(), centre.y()).rotate(-45).map(link), Colour::steel,
                 c.detailed() ? 1.3 : c.pixels(1.2));
    }
}

void signalBars(Canvas &c)
{
    for (int i = 0; i < 4; ++i) {
        const qreal left = 0.8 + i * 3.8;
        c.shape(box(left, 11.5 - i * 3.4, left + 2.8, 15.2), Colour::blue);
    }
}

void bell(Canvas &c)
{
    QPainterPath body;
    body.moveTo(1.5, 12.6);
    body.cubicTo(3.4, 11.4, 3, 9, 3.5, 7);
    body.cubicTo(4, 3.8, 6, 2.4, 8, 2.4);
    body.cubicTo(10, 2.4, 12, 3.8, 12.5, 7);
    body.cubicTo(13, 9, 12.6, 11.4, 14.5, 12.6);
    body.closeSubpath();
    c.shape(merged({body, circle(8, 1.9, 1.3), circle(8, 13.6, 1.9)}), Colour::red);
}

void phone(Canvas &c)
{
    c.shape(box(4, 0.5, 12, 15.5, 1.5), Colour::ink, Colour::ink);
    c.fill(box(5.3, 2, 10.7, 7.2), Colour::sky);
    for (qreal y : {9.2, 11.3, 13.4}) {
        for (qreal x : {5.6, 7.6, 9.6})
            c.fill(box(x, y, x + 0.9, y + 0.9), Colour::fold);
    }
}

void memoryCard(Canvas &c)
{
    c.shape(polygon({{3, 0.5}, {10, 0.5}, {13, 3.5}, {13, 15.5}, {3, 15.5}}), Colour::navy);
    for (qreal x : {4.2, 6.2, 8.2})
        c.fill(box(x, 1.5, x + 1.2, 4.2), Colour::gold);
    c.fill(box(4.5, 7.5, 11.5, 14, 0.5), Colour::paper);
    if (c.detailed()) {
        c.line({5.5, 9.5}, {10.5, 9.5}, Colour::pencil, 0.6);
        c.line({5.5, 11.5}, {9, 11.5}, Colour::pencil, 0.6);
    }
}

void simCard(Canvas &c)
{
    c.shape(polygon({{0.5, 2.5}, {12, 2.5}, {15.5, 6}, {15.5, 13.5}, {0.5, 13.5}}), Colour::paper, Colour::steel);
    c.shape(box(3, 5, 10, 12, 1), Colour::gold);
    // The chip's contact pads, split on pixel centres so that they stay sharp in a list row.
    const QColor contact = Colour::gold.darker(150);
    const qreal width = c.detailed() ? 0.5 : c.pixels(1);
    c.line({3, 8.5}, {10, 8.5}, contact, width);
    c.line({6.5, 5}, {6.5, 12}, contact, width);
    if (!c.detailed())
        return;
    for (qreal y : {6.8, 10.2}) {
        c.line({3, y}, {5.2, y}, contact, 0.5);
        c.line({7.8, y}, {10, y}, contact, 0.5);
    }
}

void informationSign(Canvas &c)
{
    c.shape(circle(8, 8, 7.3), Colour::blue);
    c.fill(circle(8, 4.5, 1.3), Colour::paper);
    c.fill(box(6.9, 6.8, 9.1, 12.6, 0.5), Colour::paper);
}

void errorSign(Canvas &c)
{
    c.shape(circle(8, 8, 7.3), Colour::red);
    QPainterPath cross;
    cross.moveTo(5.2, 5.2);
    cross.lineTo(10.8, 10.8);
    cross.moveTo(10.8, 5.2);
    cross.lineTo(5.2, 10.8);
    c.fill(thick(cross, 2.2), Colour::paper);
}

struct Icon
{
    const char *name;
    int size;
    Picture draw;
};

// Every icon that the file manager asks the platform for, by its exact name.
const std::vector<Icon> &iconSet()
{
    namespace I = Tambro::Icons;
    struct Pair
    {
        Tambro::IconPair names;
        Picture draw;
    };
    static const Pair pairs[] = {
        {I::Audio, musicNote},
        {I::Picture, photo},
        {I::Video, filmStrip},
        {I::JavaApplication, coffeeCup},
        {I::Unsupported, onPage(noHandlerMark)},
        {I::PartialDownload, partialDownload},
        {I::CompleteDownload, completeDownload},
        {I::VoiceRecord, microphone},
        {I::Text, onPage(textMark)},
        {I::Bookmark, bookmarkRibbon},
        {I::SavedConversation, conversation},
        {I::LightPattern, lightBulb},
        {I::Contact, contactCard},
        {I::Calendar, calendarPage},
        {I::OtherFile, onPage(sealMark)},
        {I::Unknown, onPage(questionMark)},
        {I::BackArrow, backArrow},
        {I::InvisibleLink, hiddenLink},
        {I::Folder, folder},
        {I::CarrierFolder, folderWith(signalBars)},
        {I::RingToneFolder, folderWith(bell)},
        {I::PictureFolder, folderWith(photo)},
        {I::AudioFolder, folderWith(musicNote)},
        {I::VideoFolder, folderWith(filmStrip)},
        {I::VoiceRecordFolder, folderWith(microphone)},
        {I::DocumentFolder, folderWith(onPage(textMark))},
        {I::MemoryCard, memoryCard},
        {I::SimCard, simCard},
        {I::BusinessCard, businessCard},
    };
    static_assert(std::size(pairs) == std::size(I::AllPairs), "every pair the library names is drawn");
    static const std::vector<Icon> icons = [] {
        std::vector<Icon> all;
        for (const Pair &pair : pairs) {
            all.push_back({pair.names.big, Big, pair.draw});
            all.push_back({pair.names.small, Small, pair.draw});
        }
        all.push_back({I::PhoneMemory, Small, phone});
        all.push_back({I::InformationNotice, Notice, informationSign});
        all.push_back({I::ErrorNotice, Notice, errorSign});
        return all;
    }();
    return icons;
}

QImage render(const Icon &icon)
{
    QImage image(icon.size, icon.size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    {
        Canvas canvas(image); // done painting before the image is handed on
        icon.draw(canvas);
    }
    return image;
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 2) {
        std::fprintf(stderr, "usage: %s FOLDER\nDraws the built-in icon set into FOLDER.\n", argv[0]);
        return 2;
    }
    const QDir folder(QString::fromLocal8Bit(argv[1]));
    if (!folder.exists()) {
        std::fprintf(stderr, "%s: no such folder: %s\n", argv[0], argv[1]);
        return 1;
    }
    for (const Icon &icon : iconSet()) {
        const QString path = folder.filePath(QString::fromLatin1(icon.name));
        if (!render(icon).save(path, "PNG")) {
            std::fprintf(stderr, "%s: cannot write %s\n", argv[0], qPrintable(path));
            return 1;
        }
    }
    return 0;
}

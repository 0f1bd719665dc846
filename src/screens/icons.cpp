#include "screens/icons.h"

#include <QFileInfo>
#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>
#include <functional>
#include <map>

namespace mk {

namespace {

// Every icon is drawn on a 32 x 32 canvas.
using Draw = std::function<void(QPainter&)>;

const QColor kInk(40, 40, 48);
const QColor kPaper(250, 250, 245);
const QColor kBlue(40, 90, 180);
const QColor kRed(190, 40, 40);
const QColor kGreen(40, 140, 60);
const QColor kYellow(235, 190, 60);

void pen(QPainter& p, const QColor& colour, double width = 2)
{
    p.setPen(QPen(colour, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
}

void sheet(QPainter& p, QRectF r)
{
    pen(p, kInk, 1.5);
    p.setBrush(kPaper);
    p.drawRect(r);
}

void drawSelect(QPainter& p)  // a funnel
{
    pen(p, kInk, 1.5);
    p.setBrush(kBlue);
    p.drawPolygon(QPolygonF({{4, 5}, {28, 5}, {18, 17}, {18, 27}, {14, 29}, {14, 17}}));
}

void drawOrder(QPainter& p)  // "A Z" with an arrow downwards
{
    QFont f = p.font();
    f.setPixelSize(12);
    f.setBold(true);
    p.setFont(f);
    pen(p, kInk);
    p.drawText(QRectF(2, 1, 14, 14), Qt::AlignCenter, QStringLiteral("A"));
    p.drawText(QRectF(2, 17, 14, 14), Qt::AlignCenter, QStringLiteral("Z"));
    pen(p, kBlue, 2.5);
    p.drawLine(QPointF(23, 4), QPointF(23, 27));
    p.drawLine(QPointF(18, 21), QPointF(23, 27));
    p.drawLine(QPointF(28, 21), QPointF(23, 27));
}

void drawExport(QPainter& p)  // a page with an arrow leaving it
{
    sheet(p, QRectF(4, 3, 17, 24));
    pen(p, kInk, 1);
    for (int y = 8; y <= 20; y += 4)
        p.drawLine(QPointF(7, y), QPointF(17, y));
    pen(p, kGreen, 3);
    p.drawLine(QPointF(14, 19), QPointF(28, 19));
    p.drawLine(QPointF(23, 14), QPointF(28, 19));
    p.drawLine(QPointF(23, 24), QPointF(28, 19));
}

void drawLabels(QPainter& p)  // a sheet of labels
{
    sheet(p, QRectF(4, 2, 24, 28));
    p.setBrush(QColor(215, 230, 250));
    pen(p, kBlue, 1);
    for (int row = 0; row < 4; ++row)
        for (int col = 0; col < 2; ++col)
            p.drawRoundedRect(QRectF(7 + col * 10.5, 5 + row * 6, 8, 4.5), 1, 1);
}

void drawCut(QPainter& p)  // scissors
{
    pen(p, kInk, 2);
    p.drawLine(QPointF(9, 3), QPointF(21, 21));
    p.drawLine(QPointF(23, 3), QPointF(11, 21));
    p.setBrush(Qt::NoBrush);
    pen(p, kRed, 2.5);
    p.drawEllipse(QPointF(9, 25), 4.5, 4.5);
    p.drawEllipse(QPointF(23, 25), 4.5, 4.5);
}

void drawCopy(QPainter& p)  // two sheets
{
    sheet(p, QRectF(4, 3, 15, 19));
    sheet(p, QRectF(12, 10, 15, 19));
    pen(p, kInk, 1);
    for (int y = 15; y <= 24; y += 3)
        p.drawLine(QPointF(15, y), QPointF(24, y));
}

void drawPaste(QPainter& p)  // a clipboard with a sheet
{
    pen(p, kInk, 1.5);
    p.setBrush(QColor(190, 140, 80));
    p.drawRoundedRect(QRectF(4, 5, 20, 25), 2, 2);
    p.setBrush(QColor(160, 160, 160));
    p.drawRect(QRectF(9, 2, 10, 6));
    sheet(p, QRectF(13, 12, 15, 18));
}

void drawPicture(QPainter& p)  // a framed landscape with a sun
{
    pen(p, kInk, 1.5);
    p.setBrush(QColor(200, 225, 250));
    p.drawRect(QRectF(3, 5, 26, 22));
    p.setBrush(kGreen);
    pen(p, kGreen, 1);
    p.drawPolygon(QPolygonF({{4, 26}, {13, 14}, {19, 21}, {23, 17}, {28, 26}}));
    p.setBrush(kYellow);
    pen(p, kYellow, 1);
    p.drawEllipse(QPointF(22, 11), 3, 3);
}

void drawChain(QPainter& p, bool open)  // the links of a card: closed or opened chain
{
    p.setBrush(Qt::NoBrush);
    pen(p, open ? kGreen : kInk, 3);
    p.drawRoundedRect(QRectF(3, 11, 14, 9), 4.5, 4.5);
    p.drawRoundedRect(open ? QRectF(17, 11, 12, 9) : QRectF(14, 11, 15, 9), 4.5, 4.5);
}

void drawWeb(QPainter& p)  // a globe
{
    pen(p, kBlue, 1.8);
    p.setBrush(QColor(210, 230, 250));
    p.drawEllipse(QPointF(16, 16), 12, 12);
    p.setBrush(Qt::NoBrush);
    p.drawEllipse(QPointF(16, 16), 5, 12);
    p.drawLine(QPointF(4, 16), QPointF(28, 16));
    p.drawLine(QPointF(6, 10), QPointF(26, 10));
    p.drawLine(QPointF(6, 22), QPointF(26, 22));
}

void drawMail(QPainter& p)  // an envelope
{
    sheet(p, QRectF(3, 7, 26, 18));
    pen(p, kInk, 1.5);
    p.drawPolyline(QPolygonF({{3, 7}, {16, 18}, {29, 7}}));
}

void drawExit(QPainter& p)  // a door with an arrow
{
    pen(p, kInk, 1.5);
    p.setBrush(QColor(170, 120, 70));
    p.drawRect(QRectF(4, 3, 14, 26));
    pen(p, kRed, 3);
    p.drawLine(QPointF(13, 16), QPointF(29, 16));
    p.drawLine(QPointF(24, 11), QPointF(29, 16));
    p.drawLine(QPointF(24, 21), QPointF(29, 16));
}

void drawZoom(QPainter& p)  // a magnifier
{
    pen(p, kInk, 2);
    p.setBrush(QColor(220, 235, 250));
    p.drawEllipse(QPointF(13, 13), 8.5, 8.5);
    pen(p, kInk, 4);
    p.drawLine(QPointF(19.5, 19.5), QPointF(28, 28));
}

void drawFolder(QPainter& p)
{
    pen(p, kInk, 1.5);
    p.setBrush(kYellow);
    p.drawPolygon(QPolygonF({{3, 8}, {12, 8}, {15, 11}, {29, 11}, {29, 27}, {3, 27}}));
}

void drawHardDisk(QPainter& p)  // a drive box with its lamp
{
    pen(p, kInk, 1.5);
    p.setBrush(QColor(200, 200, 205));
    p.drawRoundedRect(QRectF(3, 10, 26, 13), 2, 2);
    p.setBrush(kGreen);
    p.drawEllipse(QPointF(24, 16.5), 2, 2);
}

void drawFloppy(QPainter& p)  // a diskette with its label and shutter
{
    pen(p, kInk, 1.5);
    p.setBrush(kBlue);
    p.drawPolygon(QPolygonF({{4, 4}, {25, 4}, {28, 7}, {28, 28}, {4, 28}}));
    p.setBrush(kPaper);
    p.drawRect(QRectF(8, 17, 16, 11));
    p.setBrush(QColor(200, 200, 205));
    p.drawRect(QRectF(10, 4, 11, 8));
}

void drawSound(QPainter& p)  // a loudspeaker
{
    pen(p, kInk, 1.5);
    p.setBrush(kInk);
    p.drawPolygon(QPolygonF({{4, 12}, {10, 12}, {17, 5}, {17, 27}, {10, 20}, {4, 20}}));
    p.setBrush(Qt::NoBrush);
    pen(p, kBlue, 2);
    p.drawArc(QRectF(14, 9, 10, 14), -60 * 16, 120 * 16);
    p.drawArc(QRectF(14, 5, 16, 22), -60 * 16, 120 * 16);
}

void drawVideo(QPainter& p)  // a film strip
{
    pen(p, kInk, 1.5);
    p.setBrush(kInk);
    p.drawRect(QRectF(5, 3, 22, 26));
    p.setBrush(kPaper);
    for (int y = 5; y <= 25; y += 5) {
        p.drawRect(QRectF(6.5, y, 2.5, 2.5));
        p.drawRect(QRectF(23, y, 2.5, 2.5));
    }
    p.setBrush(QColor(200, 225, 250));
    p.drawRect(QRectF(11, 6, 10, 9));
    p.drawRect(QRectF(11, 17, 10, 9));
}

void drawRemove(QPainter& p)  // a red cross
{
    pen(p, kRed, 4);
    p.drawLine(QPointF(8, 8), QPointF(24, 24));
    p.drawLine(QPointF(24, 8), QPointF(8, 24));
}

void drawGear(QPainter& p)  // a program: a window with a title bar
{
    pen(p, kInk, 1.5);
    p.setBrush(kPaper);
    p.drawRect(QRectF(3, 5, 26, 22));
    p.setBrush(kBlue);
    p.drawRect(QRectF(3, 5, 26, 6));
}

void drawDial(QPainter& p)  // a telephone receiver
{
    QPainterPath path;
    path.moveTo(6, 8);
    path.cubicTo(6, 20, 12, 26, 24, 26);
    pen(p, kInk, 6);
    p.setBrush(Qt::NoBrush);
    p.drawPath(path);
    pen(p, kInk, 8);
    p.drawPoint(QPointF(7, 7));
    p.drawPoint(QPointF(25, 25));
}

// The dialer's states on Abrir: the receiver resting on its cradle, lifted off it, and
// lifted with the sound waves of dialling.
void drawReceiver(QPainter& p, const QColor& colour, double lift)
{
    QPainterPath handle;
    handle.moveTo(5, 12 - lift);
    handle.cubicTo(10, 7 - lift, 22, 7 - lift, 27, 12 - lift);
    pen(p, colour, 5);
    p.setBrush(Qt::NoBrush);
    p.drawPath(handle);
    pen(p, colour, 7);
    p.drawPoint(QPointF(5, 13 - lift));
    p.drawPoint(QPointF(27, 13 - lift));
}

void drawCradle(QPainter& p)
{
    pen(p, kInk, 1.5);
    p.setBrush(kPaper);
    p.drawRoundedRect(QRectF(6, 17, 20, 11), 3, 3);
    p.setBrush(kInk);
    for (int r = 0; r < 2; ++r)
        for (int c = 0; c < 3; ++c)
            p.drawEllipse(QPointF(11 + c * 5, 21 + r * 4), 0.9, 0.9);
}

void drawHookOn(QPainter& p)
{
    drawCradle(p);
    drawReceiver(p, kGreen, 0);
}

void drawHookOff(QPainter& p)
{
    drawCradle(p);
    drawReceiver(p, kRed, 6);
}

void drawDialling(QPainter& p)
{
    drawCradle(p);
    drawReceiver(p, kBlue, 6);
    pen(p, kBlue, 1.5);
    p.drawArc(QRectF(20, 0, 10, 10), -30 * 16, 120 * 16);
    p.drawArc(QRectF(17, -3, 16, 16), -30 * 16, 120 * 16);
}

void drawReset(QPainter& p, const QColor& colour)  // a turning arrow
{
    pen(p, colour, 3);
    p.setBrush(Qt::NoBrush);
    p.drawArc(QRectF(6, 6, 20, 20), 60 * 16, 280 * 16);
    p.setBrush(colour);
    p.drawPolygon(QPolygonF({{21, 2}, {27, 8}, {19, 10}}));
}

void drawTypes(QPainter& p)  // a tag
{
    pen(p, kInk, 1.5);
    p.setBrush(kYellow);
    p.drawPolygon(QPolygonF({{3, 16}, {12, 6}, {29, 6}, {29, 26}, {12, 26}}));
    p.setBrush(kPaper);
    p.drawEllipse(QPointF(11, 16), 2, 2);
}

const std::map<QString, Draw>& drawings()
{
    static const std::map<QString, Draw> table = {
        {QStringLiteral("select"), drawSelect},
        {QStringLiteral("order"), drawOrder},
        {QStringLiteral("export"), drawExport},
        {QStringLiteral("labels"), drawLabels},
        {QStringLiteral("cut"), drawCut},
        {QStringLiteral("copy"), drawCopy},
        {QStringLiteral("paste"), drawPaste},
        {QStringLiteral("picture"), drawPicture},
        {QStringLiteral("conexted_open"), [](QPainter& p) { drawChain(p, true); }},
        {QStringLiteral("conexted_shut"), [](QPainter& p) { drawChain(p, false); }},
        {QStringLiteral("web"), drawWeb},
        {QStringLiteral("mail"), drawMail},
        {QStringLiteral("exit"), drawExit},
        {QStringLiteral("zoom"), drawZoom},
        {QStringLiteral("folder"), drawFolder},
        {QStringLiteral("sound"), drawSound},
        {QStringLiteral("video"), drawVideo},
        {QStringLiteral("remove"), drawRemove},
        {QStringLiteral("program"), drawGear},
        {QStringLiteral("dial"), drawDial},
        {QStringLiteral("types"), drawTypes},
        {QStringLiteral("hook_on"), drawHookOn},
        {QStringLiteral("hook_off"), drawHookOff},
        {QStringLiteral("dialling"), drawDialling},
        {QStringLiteral("reset1"), [](QPainter& p) { drawReset(p, kGreen); }},
        {QStringLiteral("reseting"), [](QPainter& p) { drawReset(p, kYellow); }},
        {QStringLiteral("festplatte"), drawHardDisk},
        {QStringLiteral("diskette"), drawFloppy},
    };
    return table;
}

// The picture holders of the main mask carry these names.
QString canonicalName(const QString& picture)
{
    static const std::map<QString, QString> holders = {
        {QStringLiteral("bildselect"), QStringLiteral("select")},
        {QStringLiteral("bildordem"), QStringLiteral("order")},
        {QStringLiteral("bildwinword"), QStringLiteral("export")},
        {QStringLiteral("bildwinfile"), QStringLiteral("labels")},
        {QStringLiteral("bildrecortar"), QStringLiteral("cut")},
        {QStringLiteral("bildcopy"), QStringLiteral("copy")},
        {QStringLiteral("bildpaste"), QStringLiteral("paste")},
        {QStringLiteral("bildbild"), QStringLiteral("picture")},
        {QStringLiteral("image6"), QStringLiteral("conexted_open")},
        {QStringLiteral("image7"), QStringLiteral("conexted_shut")},
        {QStringLiteral("image9"), QStringLiteral("web")},
        {QStringLiteral("image11"), QStringLiteral("mail")},
    };
    const QString key = picture.trimmed().toLower();
    auto it = holders.find(key);
    return it == holders.end() ? key : it->second;
}

QPixmap drawn(const Draw& draw, int size)
{
    QPixmap pixmap(size, size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(size / 32.0, size / 32.0);
    draw(painter);
    return pixmap;
}

}  // namespace

bool isBundledPicture(const QString& picture)
{
    return drawings().count(canonicalName(picture)) != 0;
}

QIcon bundledIcon(const QString& picture)
{
    if (picture.trimmed().isEmpty())
        return QIcon();
    auto it = drawings().find(canonicalName(picture));
    if (it == drawings().end()) {
        if (QFileInfo(picture).isFile())
            return QIcon(picture);
        return QIcon();
    }
    QIcon icon;
    for (int size : {16, 24, 32, 48})
        icon.addPixmap(drawn(it->second, size));
    return icon;
}

QPixmap picturePixmap(const QString& picture, int iconSize)
{
    if (picture.trimmed().isEmpty())
        return QPixmap();
    auto it = drawings().find(canonicalName(picture));
    if (it != drawings().end())
        return drawn(it->second, iconSize);
    QPixmap pixmap;
    if (QFileInfo(picture).isFile())
        pixmap.load(picture);
    return pixmap;
}

}  // namespace mk

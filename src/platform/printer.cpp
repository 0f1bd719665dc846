#include "platform/printer.h"

#include "platform/runtime_error.h"
#include "platform/user_interface.h"

#include <QColor>
#include <QFile>
#include <QFont>
#include <QFontMetricsF>
#include <QImage>
#include <QImageReader>
#include <QPageLayout>
#include <QPainter>
#include <QPen>
#include <QPrinter>
#include <QPrinterInfo>
#include <cmath>

namespace mk {

namespace {

QString quoted(const QString& text)
{
    QString out = QStringLiteral("\"");
    for (const QChar c : text) {
        switch (c.unicode()) {
        case '"': out += QStringLiteral("\\\""); break;
        case '\\': out += QStringLiteral("\\\\"); break;
        case '\n': out += QStringLiteral("\\n"); break;
        case '\r': out += QStringLiteral("\\r"); break;
        case '\t': out += QStringLiteral("\\t"); break;
        default: out += c;
        }
    }
    return out + QLatin1Char('"');
}

QString number(double value) { return QString::number(std::llround(value)); }
QString truth(bool value) { return value ? QStringLiteral("True") : QStringLiteral("False"); }

QColor qcolour(long colour) { return QColor(int(colour & 0xFF), int((colour >> 8) & 0xFF), int((colour >> 16) & 0xFF)); }

// Sizes in twips: the painter's unit is the twip, and a point size would be scaled with it.
QFont qfont(const PrintFont& f)
{
    QFont font(f.Name);
    font.setPixelSize(std::max(1, int(std::lround(f.Size * 20))));
    font.setBold(f.Bold);
    font.setItalic(f.Italic);
    return font;
}

}  // namespace

QString printLogLine(const PrintOp& op)
{
    using K = PrintOp::Kind;
    switch (op.kind) {
    case K::Font:
        return QStringLiteral("Font %1 %2 %3 %4")
            .arg(quoted(op.font.Name), QString::number(op.font.Size), truth(op.font.Bold), truth(op.font.Italic));
    case K::ForeColor: return QStringLiteral("ForeColor %1").arg(op.colour);
    case K::Text: return QStringLiteral("Print %1 %2 %3").arg(number(op.lx1), number(op.ly1), quoted(op.text));
    case K::Line:
        return QStringLiteral("Line %1 %2 %3 %4 %5")
            .arg(number(op.lx1), number(op.ly1), number(op.lx2), number(op.ly2))
            .arg(op.colour);
    case K::Picture:
        return QStringLiteral("Picture %1 %2 %3 %4 %5")
            .arg(quoted(op.text), number(op.lx1), number(op.ly1), number(op.lx2), number(op.ly2));
    case K::NewPage: return QStringLiteral("NewPage");
    case K::EndDoc: return QStringLiteral("EndDoc");
    case K::Cls: return QStringLiteral("Cls");
    case K::Form: return QStringLiteral("Form ") + op.text;
    }
    return {};
}

double printLineHeight(double fontSize) { return std::round(fontSize * 20 * 1.15); }

void paintOp(QPainter& painter, const PrintOp& op)
{
    using K = PrintOp::Kind;
    switch (op.kind) {
    case K::Text: {
        const QFont font = qfont(op.font);
        painter.setFont(font);
        painter.setPen(qcolour(op.colour));
        const QFontMetricsF metrics(font);
        const double baseline = op.y1 + metrics.ascent();
        // A tab stands for Tab(20): the rest goes to the twentieth column.
        const qsizetype tab = op.text.indexOf(QLatin1Char('\t'));
        painter.drawText(QPointF(op.x1, baseline), op.text.left(tab < 0 ? op.text.size() : tab));
        if (tab >= 0)
            painter.drawText(QPointF(op.x1 + 19 * metrics.averageCharWidth(), baseline), op.text.mid(tab + 1));
        break;
    }
    case K::Line: {
        QPen pen(qcolour(op.colour));
        pen.setWidthF(10);
        painter.setPen(pen);
        painter.drawLine(QPointF(op.x1, op.y1), QPointF(op.x2, op.y2));
        break;
    }
    case K::Picture: {
        QImage image(op.text);
        if (!image.isNull())
            painter.drawImage(QRectF(op.x1, op.y1, op.x2, op.y2).normalized(), image);
        break;
    }
    default: break;
    }
}

void paintOps(QPainter& painter, const std::vector<PrintOp>& ops)
{
    for (const PrintOp& op : ops)
        paintOp(painter, op);
}

// ---- the surface ---------------------------------------------------------------------------

double Surface::toX(double x) const { return scaled_ ? (x - scaleLeft_) * Width() / scaleWidth_ : x; }
double Surface::toY(double y) const { return scaled_ ? (y - scaleTop_) * Height() / scaleHeight_ : y; }

void Surface::emitFontAndColour()
{
    const PrintFont font{FontName, FontSize, FontBold, FontItalic};
    if (!fontSent_ || !(font == sentFont_)) {
        PrintOp op;
        op.kind = PrintOp::Kind::Font;
        op.font = font;
        record(op);
        fontSent_ = true;
        sentFont_ = font;
    }
    if (!colourSent_ || ForeColor != sentColour_) {
        PrintOp op;
        op.kind = PrintOp::Kind::ForeColor;
        op.colour = ForeColor;
        record(op);
        colourSent_ = true;
        sentColour_ = ForeColor;
    }
}

void Surface::Print(const QString& text)
{
    emitFontAndColour();
    PrintOp op;
    op.kind = PrintOp::Kind::Text;
    op.lx1 = CurrentX;
    op.ly1 = CurrentY;
    op.x1 = toX(CurrentX);
    op.y1 = toY(CurrentY);
    op.text = text;
    op.font = sentFont_;
    op.colour = ForeColor;
    record(op);
    const double line = printLineHeight(FontSize);
    CurrentX = scaled_ ? scaleLeft_ : 0;
    CurrentY += scaled_ ? line * scaleHeight_ / Height() : line;
}

void Surface::Line(double x1, double y1, double dx, double dy) { LineTo(x1, y1, x1 + dx, y1 + dy); }

void Surface::LineTo(double x1, double y1, double x2, double y2)
{
    PrintOp op;
    op.kind = PrintOp::Kind::Line;
    op.lx1 = x1, op.ly1 = y1, op.lx2 = x2, op.ly2 = y2;
    op.x1 = toX(x1), op.y1 = toY(y1), op.x2 = toX(x2), op.y2 = toY(y2);
    op.colour = ForeColor;
    record(op);
    CurrentX = x2;
    CurrentY = y2;
}

void Surface::PaintPicture(const QString& path, double x, double y, double width, double height)
{
    if (path.isEmpty() || !QImageReader(path).canRead())
        throw RuntimeError(errInvalidPicture, QStringLiteral("Invalid picture"));
    PrintOp op;
    op.kind = PrintOp::Kind::Picture;
    op.text = path;
    op.lx1 = x, op.ly1 = y, op.lx2 = width, op.ly2 = height;
    op.x1 = toX(x);
    op.y1 = toY(y);
    op.x2 = toX(x + width) - op.x1;
    op.y2 = toY(y + height) - op.y1;
    record(op);
}

void Surface::Scale(double x1, double y1, double x2, double y2)
{
    if (x2 == x1 || y2 == y1)
        throw RuntimeError(5, QStringLiteral("Invalid procedure call"));
    scaled_ = true;
    scaleLeft_ = x1;
    scaleTop_ = y1;
    scaleWidth_ = x2 - x1;
    scaleHeight_ = y2 - y1;
    CurrentX = x1;
    CurrentY = y1;
}

void Surface::ScaleTwips()
{
    scaled_ = false;
    CurrentX = CurrentY = 0;
}

void Surface::NewPage()
{
    PrintOp op;
    op.kind = PrintOp::Kind::NewPage;
    record(op);
    CurrentX = scaled_ ? scaleLeft_ : 0;
    CurrentY = scaled_ ? scaleTop_ : 0;
}

void Surface::EndDoc()
{
    PrintOp op;
    op.kind = PrintOp::Kind::EndDoc;
    record(op);
    CurrentX = scaled_ ? scaleLeft_ : 0;
    CurrentY = scaled_ ? scaleTop_ : 0;
    fontSent_ = colourSent_ = false;  // each job states its font afresh
}

void Surface::Cls()
{
    PrintOp op;
    op.kind = PrintOp::Kind::Cls;
    record(op);
    CurrentX = scaled_ ? scaleLeft_ : 0;
    CurrentY = scaled_ ? scaleTop_ : 0;
    fontSent_ = colourSent_ = false;
}

// ---- recording --------------------------------------------------------------------------------

void RecordingSurface::record(const PrintOp& op)
{
    if (op.kind == PrintOp::Kind::Cls && !keepAfterCls)
        ops.clear();
    if (keepOps)
        ops.push_back(op);
    if (logPath.isEmpty())
        return;
    QFile file(logPath);
    if (file.open(QIODevice::WriteOnly | QIODevice::Append))
        file.write((printLogLine(op) + QLatin1Char('\n')).toUtf8());
}

void RecordingSurface::beginDrawing(const QString& form)
{
    PrintOp op;
    op.kind = PrintOp::Kind::Form;
    op.text = form;
    record(op);
}

QStringList RecordingSurface::logLines() const
{
    QStringList lines;
    for (const PrintOp& op : ops)
        lines << printLogLine(op);
    return lines;
}

// ---- the system printer and PDF files -----------------------------------------------------------

struct QtPrinterSurface::Job {
    QPrinter printer{QPrinter::HighResolution};
    QPainter painter;
};

QtPrinterSurface::QtPrinterSurface(UserInterface& ui, QString pdfPath, QString printerName)
    : ui_(ui), pdfPath_(std::move(pdfPath)), printerName_(std::move(printerName))
{
}

QtPrinterSurface::~QtPrinterSurface()
{
    if (job_ && job_->painter.isActive())
        job_->painter.end();
}

namespace {

QSizeF pageTwips(const QPrinter& printer)
{
    const QRectF page = printer.pageLayout().fullRect(QPageLayout::Point);
    return {page.width() * 20, page.height() * 20};
}

// The page of the running job, or of the printer a job would use.
QSizeF pageOf(const QPrinter* job, const QString& printerName)
{
    if (job)
        return pageTwips(*job);
    QPrinter probe;
    if (!printerName.isEmpty())
        probe.setPrinterName(printerName);
    return pageTwips(probe);
}

}  // namespace

double QtPrinterSurface::Height() const { return pageOf(job_ ? &job_->printer : nullptr, printerName_).height(); }
double QtPrinterSurface::Width() const { return pageOf(job_ ? &job_->printer : nullptr, printerName_).width(); }

bool QtPrinterSurface::open()
{
    if (job_)
        return true;
    if (dropped_)
        return false;
    QString pdf = pdfPath_;
    if (pdf.isEmpty() && printerName_.isEmpty() && QPrinterInfo::availablePrinters().isEmpty()) {
        // No printer is installed: the pages can still go to a PDF file.
        FileDialog d;
        d.DialogTitle = QStringLiteral("Kein Drucker eingerichtet - als PDF-Datei speichern");
        d.Filter = QStringLiteral("PDF-Dateien (*.pdf)|*.pdf|");
        d.DefaultExt = QStringLiteral("pdf");
        const FileChoice choice = ui_.ShowSave(d);
        if (choice.cancelled || choice.FileName.isEmpty()) {
            dropped_ = true;
            return false;
        }
        pdf = choice.FileName;
    }
    job_ = std::make_unique<Job>();
    QPrinter& printer = job_->printer;
    if (!pdf.isEmpty()) {
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(pdf);
        printer.setPageSize(QPageSize(QPageSize::A4));
    } else if (!printerName_.isEmpty()) {
        printer.setPrinterName(printerName_);
    }
    printer.setFullPage(true);
    if (!job_->painter.begin(&printer)) {
        job_.reset();
        dropped_ = true;
        ui_.MsgBox(QStringLiteral("Der Drucker hat den Druckauftrag nicht angenommen. Es wurde nichts gedruckt."),
                   vbExclamation, QStringLiteral("Drucken"));
        return false;
    }
    const double scale = printer.resolution() / 1440.0;
    job_->painter.scale(scale, scale);
    return true;
}

void QtPrinterSurface::record(const PrintOp& op)
{
    using K = PrintOp::Kind;
    if (op.kind == K::EndDoc) {
        if (job_)
            job_->painter.end();
        job_.reset();
        dropped_ = false;
        return;
    }
    if (!open())
        return;
    if (op.kind == K::NewPage) {
        if (!job_->printer.newPage()) {
            ui_.MsgBox(QStringLiteral("Der Drucker ist nicht mehr erreichbar. Der Druck wurde abgebrochen."),
                       vbExclamation, QStringLiteral("Drucken"));
            job_->painter.end();
            job_.reset();
            dropped_ = true;
        }
        return;
    }
    paintOp(job_->painter, op);
}

// ---- the devices ------------------------------------------------------------------------------

Surface& PrintDevices::printer()
{
    if (!printer_) {
        if (makePrinter)
            printer_ = makePrinter();
        if (!printer_)
            printer_ = std::make_unique<RecordingSurface>(kA4HeightTwips, kA4WidthTwips);
    }
    return *printer_;
}

RecordingSurface& PrintDevices::form(const QString& name)
{
    auto& slot = forms_[name];
    if (!slot) {
        slot = std::make_unique<RecordingSurface>(screenHeight, screenWidth);
        slot->logPath = previewLog;
    }
    return *slot;
}

}  // namespace mk

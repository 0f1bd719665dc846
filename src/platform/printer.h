#pragma once
// The printer and the drawing surfaces of forms, in twips, as the old runtime's Printer
// object and a form's own drawing methods gave them: CurrentX/CurrentY, Print, Line,
// ForeColor, the font, PaintPicture, Scale, NewPage, EndDoc, Cls, Height and Width.
//
// A surface turns every operation into one PrintOp in absolute twips. What becomes of the
// ops is the device's business: a painter (the system printer, a PDF file, a form on the
// screen) draws them with paintOp(); a recording surface keeps them and writes the printer
// log. So what a preview shows is what the paper gets.

#include <QString>
#include <QStringList>
#include <functional>
#include <map>
#include <memory>
#include <vector>

class QPainter;

namespace mk {

class UserInterface;

struct PrintFont {
    QString Name = QStringLiteral("Arial");
    double Size = 10;
    bool Bold = false;
    bool Italic = false;
    bool operator==(const PrintFont&) const = default;
};

struct PrintOp {
    enum class Kind { Font, ForeColor, Text, Line, Picture, NewPage, EndDoc, Cls, Form };
    Kind kind = Kind::Text;
    double x1 = 0, y1 = 0, x2 = 0, y2 = 0;  // device twips: text origin, line ends, picture box
    double lx1 = 0, ly1 = 0, lx2 = 0, ly2 = 0;  // the same as the program gave them (under Scale)
    QString text;                           // text, picture path, form name
    PrintFont font;                         // Font, Text
    long colour = 0;                        // ForeColor, Text, Line
};

// The op as one line of the printer log: Font "ARIAL" 12 False False, ForeColor 0,
// Print X Y "text", Line X1 Y1 X2 Y2 COLOR, Picture "path" X Y W H, NewPage, EndDoc,
// Cls, Form NAME.
QString printLogLine(const PrintOp& op);

// The height of one printed line of a font, in twips; Print moves CurrentY by it. One
// formula for every device, so that previews and paper break alike.
double printLineHeight(double fontSize);

// Draws one op with a painter whose unit is the twip (origin at the page's corner).
void paintOp(QPainter& painter, const PrintOp& op);
// Draws a list of ops, e.g. a form's drawing on its widget.
void paintOps(QPainter& painter, const std::vector<PrintOp>& ops);

constexpr int errInvalidPicture = 481;   // a picture file that cannot be loaded
constexpr int errPrinter = 482;          // the printer refused the job

class Surface {
public:
    virtual ~Surface() = default;

    double CurrentX = 0;
    double CurrentY = 0;
    long ForeColor = 0;
    QString FontName = QStringLiteral("Arial");
    double FontSize = 10;
    bool FontBold = false;
    bool FontItalic = false;

    // Prints the text at the current position and moves to the start of the next line.
    void Print(const QString& text = QString());
    // A line from (x1, y1) to (x1 + dx, y1 + dy), in ForeColor.
    void Line(double x1, double y1, double dx, double dy);
    void LineTo(double x1, double y1, double x2, double y2);
    // A picture file drawn into a rectangle; errInvalidPicture when it cannot be loaded.
    void PaintPicture(const QString& path, double x, double y, double width, double height);
    // Scale (x1, y1)-(x2, y2): the user's corners of the page.
    void Scale(double x1, double y1, double x2, double y2);
    void ScaleTwips();  // back to plain twips
    void NewPage();
    void EndDoc();
    void Cls();

    // The page in twips.
    virtual double Height() const = 0;
    virtual double Width() const = 0;

protected:
    virtual void record(const PrintOp& op) = 0;

private:
    double toX(double x) const;
    double toY(double y) const;
    void emitFontAndColour();
    bool scaled_ = false;
    double scaleLeft_ = 0, scaleTop_ = 0, scaleWidth_ = 1, scaleHeight_ = 1;
    bool fontSent_ = false;
    PrintFont sentFont_;
    bool colourSent_ = false;
    long sentColour_ = 0;
};

// Keeps every op (for the screen and for tests) and appends the log lines to a file when
// one is named. As a printer it stands for an A4 page; as a form, for a screen.
class RecordingSurface : public Surface {
public:
    RecordingSurface(double height, double width) : height_(height), width_(width) {}
    double Height() const override { return height_; }
    double Width() const override { return width_; }
    void setSize(double height, double width) { height_ = height; width_ = width; }

    QString logPath;          // lines are appended here when not empty
    bool keepOps = true;      // false: only the log (long runs)
    bool keepAfterCls = false;  // a form forgets its drawing at Cls; a printer never does
    std::vector<PrintOp> ops;
    QStringList logLines() const;

    // Starts a drawing on a form: the line "Form NAME".
    void beginDrawing(const QString& form);

protected:
    void record(const PrintOp& op) override;

private:
    double height_, width_;
};

constexpr double kA4HeightTwips = 16838;
constexpr double kA4WidthTwips = 11906;

// The system printer or a PDF file through QPrinter. A job opens at its first op and
// closes at EndDoc. With no printer installed the first op offers a PDF file instead;
// a cancelled choice drops the job. A printer that cannot start the job says so once.
class QtPrinterSurface : public Surface {
public:
    // pdfPath empty: the system printer (printerName, or the default one).
    QtPrinterSurface(UserInterface& ui, QString pdfPath = QString(), QString printerName = QString());
    ~QtPrinterSurface() override;
    double Height() const override;
    double Width() const override;
    void setPrinterName(const QString& name) { printerName_ = name; }

protected:
    void record(const PrintOp& op) override;

private:
    struct Job;
    bool open();
    UserInterface& ui_;
    QString pdfPath_;
    QString printerName_;
    std::unique_ptr<Job> job_;
    bool dropped_ = false;  // the job was refused or cancelled: the rest of it is dropped
};

// The devices of the system: the one Printer and the drawing of each form.
class PrintDevices {
public:
    // Makes the printer at its first use: the driver and the tests put a recording one here.
    std::function<std::unique_ptr<Surface>()> makePrinter;
    Surface& printer();
    void setPrinter(std::unique_ptr<Surface> printer) { printer_ = std::move(printer); }
    bool hasPrinter() const { return printer_ != nullptr; }

    // The drawing of a form, as large as the screen; its log goes to previewLog.
    RecordingSurface& form(const QString& name);
    QString previewLog;
    double screenHeight = 12000;  // 1280 x 800 pixels at 15 twips
    double screenWidth = 19200;
    // Called after a form's drawing changed, so that the screen repaints it.
    std::function<void(const QString& form)> formChanged;

private:
    std::unique_ptr<Surface> printer_;
    std::map<QString, std::unique_ptr<RecordingSurface>> forms_;
};

}  // namespace mk

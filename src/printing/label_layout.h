#pragma once
// The label layout: form etiquet, whose controls are the single store of the label settings.
// Lengths are decimal text in centimetres; 567 twips make a centimetre throughout printing.
// Here live the decimal rules, the fitting of the sheet to the page, the count boxes and
// their scroll bars, the .ecf layout files, the sample card, the dialogs and the keys.

#include <QString>

namespace mk {

struct Merkkartelle;
struct EventArgs;
class HandlerTable;
struct etiquet;

// Val(text) * 567 to a 32-bit integer, rounded as the platform rounds (half to even).
long cmInTwips(const QString& text);
// The line pitch: Val(tabh) * 567 / (3.1415927 * 3), about 60.16 twips per unit.
long zeilenabstandInTwips(const QString& tabh);

// The geometry of a sheet in twips, read from etiquet at the start of a run.
struct Etikettenmasse {
    long W = 0, H = 0;    // label width and height
    long L = 0, T = 0;    // left and top offset of the first label
    long TX = 0, TY = 0;  // text offset inside the label
    long GX = 0, GY = 0;  // gap between columns, between rows
    long P = 0;           // line pitch
    int spalten = 1;      // Quantidade: labels across
    int zeilen = 1;       // colunas: labels down
};
Etikettenmasse EtikettenmasseLesen(const etiquet& e);
// BogenHoehe: Val(Text6) + Val(colunas) * Val(Text2) + Val(dishor) * (Val(colunas) - 1), cm.
double Bogenhoehe(const etiquet& e);

// decimalconvertor: every character that is no number, no "0" and no "." becomes "."; a
// text of more than ten characters raises the subscript error (9) and stays unchanged.
void decimalconvertor(QString& text);
// decimalconvertor over the nine length boxes.
void ConverterTexto(Merkkartelle& app);
// The change handler of a length box: an empty box becomes "0", the first decimal sign a
// point, a second one is cut off; the caret goes to the end; the preview redraws.
void Laengenfeld_Change(Merkkartelle& app, const QString& control);
// Format(value, "####.##") with a point, as DruckflaecheLesen writes the page size.
QString seitenmass(double cm);

void DruckflaecheLesen(Merkkartelle& app);
// Text9 from the geometry; lowers colunas row by row until the sheet fits the page.
void SeiteEinpassen(Merkkartelle& app);
void EtikettenFormAbgleichen(Merkkartelle& app);
// Quantidade or colunas changed: Text12, 0 turned into 1, the scroll bar, fitting, preview.
void Mengenfeld_Change(Merkkartelle& app, bool quer);
// Copies the current Laufendenummer of Kartensatz into Label38.
void LfnrAnzeigen(Merkkartelle& app);
// FindFirst on Kartensatz with "LEFT([Laufendenummer],len) = 'nummer'": a prefix match, so
// "12" also finds 123 when it comes first. True when a card was found.
bool NummernpraefixFinden(Merkkartelle& app, const QString& nummer);
// Finds the card named by Label38 (a prefix match) and shows it.
void changer(Merkkartelle& app);

// The .ecf layout file: 45 values, one Write record a line, in the order of the table.
void EtikettendateiSchreiben(Merkkartelle& app, const QString& path);
// Reads up to 45 values (a short file leaves the rest empty) into the controls.
void EtikettendateiLesen(Merkkartelle& app, const QString& path);

// The preview form4 redraws when it is shown and the form is not being dragged.
void VorschauAuffrischen(Merkkartelle& app);

// Every handler of the printing forms (etiquet, form4, mala, malasp, malaview, Form6 and
// the printing entries of the main mask's menu).
void registerPrintingHandlers(HandlerTable& table);
void registerLabelLayoutHandlers(HandlerTable& table);

}  // namespace mk

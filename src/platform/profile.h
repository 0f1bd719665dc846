#pragma once
// Profile files: the INI reading and writing the system did through the platform, on our own
// small reader and writer. Section and key names match without regard to case. A bare file
// name ("win.ini", "MERKKARTELLE.INI") means that file in the Windows directory (see
// app_home.h); a path passes resolvePath() (files.h).
//
// win.ini need not exist: keys of section Intl that it lacks come from the profile locale
// (sDecimal, sThousand, sDate, sShortDate), and windows/spooler reads "yes".

#include <QLocale>
#include <QString>

namespace mk {

// The value of key in section, or the default (less its trailing blanks) when there is no
// such key. A value in double quotes loses them. The value is cut at a zero character.
QString GetPrivateProfileString(const QString& section, const QString& key,
                                const QString& defaultValue, const QString& file);

// Writes key=value into section: the key's line is replaced where it stands, or added at the
// end of its section; other sections and keys keep their order. A missing file, folder or
// section is created. Lines end in CR LF. An empty value writes "key=".
void WritePrivateProfileString(const QString& section, const QString& key,
                               const QString& value, const QString& file);

// What the platform did with a null value or a null key: remove the key, or the section.
void deletePrivateProfileKey(const QString& section, const QString& key, const QString& file);
void deletePrivateProfileSection(const QString& section, const QString& file);

// GetPrivateProfileString on win.ini.
QString GetProfileString(const QString& section, const QString& key, const QString& defaultValue);

// The locale values win.ini stands for.
struct IntlValues {
    QString sDecimal;
    QString sThousand;
    QString sDate;
    QString sShortDate;  // in the old notation, e.g. "dd.MM.yyyy"
};
IntlValues intlValuesOf(const QLocale& locale);

// The locale whose values stand in for absent Intl keys; the system's locale unless set.
// The headless driver sets German: ",", ".", ".", "dd.MM.yyyy".
void setProfileLocale(const QLocale& locale);
QLocale profileLocale();

}  // namespace mk

#pragma once

#include <QByteArrayView>
#include <QList>
#include <QString>
#include <QStringView>

#include <utility>

// The text rules of vCard lines that VCardReader builds on: ASCII case,
// blanks, quoted-printable, declared character sets and backslash escapes.
namespace VCardText {

bool isFoldSpace(char c);
bool equalsIgnoringCase(QByteArrayView a, QByteArrayView b);
// Without blanks, tabs and line breaks at either end.
QByteArrayView trimmed(QByteArrayView v);
// Where the value starts: the first colon outside double quotes, or -1.
qsizetype valueColon(QByteArrayView line);
// Splits at `separator` where it is not escaped with a backslash.
QList<QStringView> splitUnescaped(QStringView text, QChar separator);
QString unescape(QStringView text);
// The decoded text of one property.
QString decodeValue(QByteArrayView bytes, bool quotedPrintable, QByteArrayView charset);
// Text without escapes or surrounding blanks.
QString plainText(const QString &text);
// The first and second components of a structured value (family and given
// names of N), split at unescaped semicolons; cheaper than splitting it all.
std::pair<QStringView, QStringView> firstTwoComponents(QStringView text);

} // namespace VCardText

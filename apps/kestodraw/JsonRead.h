#pragma once

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QString>

#include <stdexcept>

namespace KestoDraw {

// What is wrong with a file being read, in words for the user; reading stops at the first fault.
class FormatError : public std::runtime_error {
    Q_DECLARE_TR_FUNCTIONS(KestoDraw::FormatError)

public:
    explicit FormatError(const QString& message) : std::runtime_error(message.toStdString()) {}
    QString Message() const { return QString::fromStdString(what()); }
};

// Checked reads of a JSON document: each answers the value, or throws FormatError naming the
// key and what it should have been.
namespace JsonRead {

QJsonObject Object(const QJsonValue& value, const QString& what);
QJsonArray Array(const QJsonObject& object, const QString& key);
QJsonObject Object(const QJsonObject& object, const QString& key);
// A finite number within min..max.
double Number(const QJsonObject& object, const QString& key, double min, double max);
double Number(const QJsonValue& value, const QString& what, double min, double max);
// A whole number within min..max.
int Int(const QJsonObject& object, const QString& key, int min, int max);
bool Bool(const QJsonObject& object, const QString& key);
QString String(const QJsonObject& object, const QString& key);

// How messages show what a file holds: a number as a whole number where it is one (never
// "1.07374e+09"), a text cut to a readable excerpt.
QString NumberText(double value);
QString Excerpt(const QString& text);

} // namespace JsonRead

} // namespace KestoDraw

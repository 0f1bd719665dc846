#pragma once
// The property tables of the control kinds and of the form itself: name -> read and write
// as text. One small table per kind, built once; the registry looks properties up here.

#include "forms/controls.h"

#include <QString>
#include <functional>
#include <map>
#include <vector>

namespace mk {

using PropertyArgs = std::vector<int>;

template <class Owner>
struct PropertyOf {
    int argCount = 0;  // List(i) takes 1, TextMatrix(r,c) takes 2
    std::function<QString(Owner&, const PropertyArgs&)> get;
    std::function<void(Owner&, const PropertyArgs&, const QString&)> set;  // empty: read-only
};

using Property = PropertyOf<Control>;
using FormProperty = PropertyOf<Form>;
using PropertyTable = std::map<QString, Property>;         // keys in lower case
using FormPropertyTable = std::map<QString, FormProperty>;

const PropertyTable& propertiesOf(ControlKind kind);
const FormPropertyTable& formProperties();

// Text conversions of the registry; they raise FormsError for a value of the wrong kind.
QString boolText(bool value);
bool boolFromText(const QString& text);
int intFromText(const QString& text);
long longFromText(const QString& text);
double doubleFromText(const QString& text);

}  // namespace mk

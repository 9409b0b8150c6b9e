#pragma once

#include <QJsonObject>
#include <QList>
#include <QString>

class AbstractFilter;
class ArrayFile;
class FilterChain;

/// Makes the filters of a filters file, a JSON array of {"name": ..., "params": {...}}, and adds
/// them to the chain, which owns them. Returns them in chain order. Throws Fault for an unknown
/// filter or parameter and for a value that a parameter cannot hold.
QList<AbstractFilter*> loadFilters(const ArrayFile& file, FilterChain& chain);

/// Makes the filters that a settings list implies and adds them to the chain as loadFilters() does:
/// accept all or nothing, the limits of the rejections, and the maximum sum when it is above 0.
QList<AbstractFilter*> filtersOfSettings(const ArrayFile& file, FilterChain& chain);

/// The filter's name as the filters file has it.
QString filterName(const AbstractFilter& filter);

/// The filter's parameters with the values that it holds.
QJsonObject filterParams(const AbstractFilter& filter);

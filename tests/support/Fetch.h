// FETCH(Type, name): the value of a data column as an expression, where
// QFETCH would need a declaration of its own.
#pragma once

#include <QTest>

#define FETCH(Type, name) (*static_cast<Type*>(QTest::qData(#name, ::qMetaTypeId<Type>())))

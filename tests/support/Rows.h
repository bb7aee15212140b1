#ifndef TESTS_ROWS_H
#define TESTS_ROWS_H

#include <QtTest>

#include <tuple>
#include <utility>

/// The rows of a data-driven test: `row("name", values...)` in the function that makes them,
/// `const auto [...] = Rows<...>::current()` in the test. The columns have numbers for names.
template <typename... Columns>
class Rows
{
public:
    Rows() { define(std::index_sequence_for<Columns...>()); }

    void operator()(const char* name, const Columns&... values) const
    {
        QTestData& row = QTest::newRow(name);
        static_cast<void>((row << ... << values));
    }
    void operator()(const QString& name, const Columns&... values) const
    {
        (*this)(qPrintable(name), values...);
    }

    static std::tuple<Columns...> current() { return fetch(std::index_sequence_for<Columns...>()); }

private:
    // Qt Test keeps the pointers.
    static constexpr const char* Names[] = {"0", "1", "2", "3", "4", "5", "6", "7"};
    static_assert(sizeof...(Columns) <= std::size(Names));

    template <std::size_t... Index>
    static void define(std::index_sequence<Index...> /*unused*/)
    {
        (QTest::addColumn<Columns>(Names[Index]), ...);
    }
    template <std::size_t... Index>
    static std::tuple<Columns...> fetch(std::index_sequence<Index...> /*unused*/)
    {
        return {*static_cast<Columns*>(QTest::qData(Names[Index], qMetaTypeId<Columns>()))...};
    }
};

#endif

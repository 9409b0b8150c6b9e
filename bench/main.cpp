#include <QLoggingCategory>

#include <benchmark/benchmark.h>

int main(int argc, char** argv)
{
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}

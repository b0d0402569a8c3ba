// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench/support/Bounds.h"
#include "core/Annotation/AnnotationDocument.h"

#include <benchmark/benchmark.h>

#include <QJsonDocument>

using namespace tessaly;

namespace {

/// Marks of every kind in turn, as an editor leaves them, with 10 MB of pictures among them.
AnnotationDocument largeDocument()
{
    static constexpr int marks = 10'000;
    static constexpr int pictures = 10;
    AnnotationDocument document;
    document.canvasSize = { 1920, 1080 };
    document.generator = QStringLiteral("Tessaly bench");
    for (int index = 0; index < marks; ++index) {
        const auto kind
            = enumNames<AnnotationKind>[static_cast<std::size_t>(index) % enumNames<AnnotationKind>.size()].value;
        const QPointF corner(index * 37 % 1800 + 0.25, index * 23 % 1000 + 0.125);
        Annotation mark(kind, corner, corner + QPointF(80.5, 44.75));
        mark.text = QStringLiteral("Note %1: größer").arg(index);
        for (int point = 0; kind == AnnotationKind::Pen && point < 60; ++point)
            mark.points += corner + QPointF(point * 1.37, point * point * 0.013);
        if (index % 3 == 0)
            mark.tailAngle = index * 0.001;
        if (index % (marks / pictures) == 0) {
            QByteArray bytes(1'000'000, Qt::Uninitialized);
            for (quint32 at = 0, noise = 1; char &byte : bytes)
                byte = static_cast<char>((noise = noise * 1664525 + 1013904223 + at++) >> 24);
            mark.imageData = bytes;
        }
        document.annotations += mark;
    }
    return document;
}

} // namespace

int main(int argc, char **argv)
{
    const AnnotationDocument document = largeDocument();
    const QByteArray bytes = *document.encoded();
    const QJsonDocument tree = QJsonDocument::fromJson(bytes);
    if (*AnnotationDocument::decoded(bytes) != document)
        return 1;
    std::printf("%d marks, %.1f MB of JSON\n", static_cast<int>(document.annotations.size()), bytes.size() / 1e6);

    benchmark::RegisterBenchmark("Load/Qt", [&](benchmark::State &state) {
        for (auto _ : state)
            benchmark::DoNotOptimize(QJsonDocument::fromJson(bytes));
    })->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("Load/ours", [&](benchmark::State &state) {
        for (auto _ : state)
            benchmark::DoNotOptimize(AnnotationDocument::decoded(bytes));
    })->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("Save/Qt", [&](benchmark::State &state) {
        for (auto _ : state)
            benchmark::DoNotOptimize(tree.toJson(QJsonDocument::Indented));
    })->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("Save/ours", [&](benchmark::State &state) {
        for (auto _ : state)
            benchmark::DoNotOptimize(document.encoded());
    })->Unit(benchmark::kMillisecond);
    return bench::runWithBounds(argc, argv, { { "Load/ours", "Load/Qt", 3 }, { "Save/ours", "Save/Qt", 3 } });
}

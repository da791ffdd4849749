// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

// Runs a fuzz target over the inputs of its corpus and over mixtures of them. What the target was
// last given is on standard error when it crashes.

#include <QDir>
#include <QFile>
#include <QRandomGenerator>

#include <csignal>
#include <cstdint>
#include <cstdio>

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv);
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size);

static QByteArray input;

int main(int argc, char **argv)
{
    LLVMFuzzerInitialize(&argc, &argv);
    for (const int number : {SIGABRT, SIGSEGV})
        std::signal(number, [](int caught) {
            std::signal(caught, SIG_DFL);
            fwrite(input.data(), 1, size_t(input.size()), stderr);
        });
    const auto run = [] {
        LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t *>(input.constData()),
                               size_t(input.size()));
    };
    const QDir corpus(QStringLiteral(VOK_CORPUS));
    QByteArray everything;
    for (const QString &name : corpus.entryList(QDir::Files)) {
        QFile file(corpus.filePath(name));
        if (!file.open(QIODevice::ReadOnly))
            return 1;
        input = file.readAll();
        everything += input;
        run();
    }
    QRandomGenerator random(1);
    for (int i = 0; i < VOK_MIXTURES; ++i) {
        input.clear();
        for (int piece = 0; piece < 5; ++piece)
            input += everything.mid(random.bounded(everything.size()), random.bounded(12));
        run();
    }
    return everything.isEmpty() ? 1 : 0;
}

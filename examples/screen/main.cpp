// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

// The screen side: reads published service states, one a line, and shows what they mean. Built
// without a build system:
//
//     g++ -std=c++17 -fPIC main.cpp -o screen $(pkg-config --cflags --libs velmolib)

#include <velmolib/acceptorstate.h>

#include <QTextStream>

int main()
{
    QTextStream in(stdin);
    QTextStream out(stdout);
    QString line;
    while (in.readLineInto(&line)) {
        AcceptorState state;
        const quorbus::ClientState received(line, QDateTime::currentDateTime());
        AcceptorState::loadFromClientState(received, state);
        out << state.paymentStateDescr() << '\n'
            << (state.isAcceptingAllowed() ? "May accept money.\n" : "Must not accept money.\n")
            << state.systemStatusDescr({{1, QStringLiteral("Validator")}}) << '\n';
    }
    return 0;
}

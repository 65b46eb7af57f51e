// SPDX-License-Identifier: GPL-3.0-or-later
// What another program offers on the clipboard of an X server, asked for with a limit: the window
// library waits for an owner that hangs for a minute and more, and takes whatever it sends. Asked
// over a connection of our own, so that nothing of the library's is disturbed.
#pragma once

#include <QByteArray>
#include <QClipboard>
#include <memory>
#include <string>
#include <vector>

class QLineEdit;

namespace tessario {

class PortapapelesAjeno {
public:
    // Of the two that an X server has: what was copied, or what is marked somewhere.
    explicit PortapapelesAjeno(QClipboard::Mode cual = QClipboard::Clipboard);
    ~PortapapelesAjeno();
    PortapapelesAjeno(const PortapapelesAjeno&) = delete;
    PortapapelesAjeno& operator=(const PortapapelesAjeno&) = delete;

    // Is there a clipboard that is to be asked in this way? Not that of another window system, nor
    // one whose owner we are ourselves.
    static bool EsDeOtro(QClipboard::Mode cual = QClipboard::Clipboard);
    // The kinds of data on offer, by their names; none when the owner does not answer.
    std::vector<std::string> Ofrece();
    // Data of that kind; empty when they do not come, or are more than `maximo` bytes.
    QByteArray Dato(const std::string& clase, qsizetype maximo = BYTES_MAXIMOS);

    static constexpr qsizetype BYTES_MAXIMOS = qsizetype{256} << 20U;

private:
    class Conexion;
    std::unique_ptr<Conexion> c_;
};

// From now on the keys and the button that paste into this box ask with a limit.
void PegaConLimite(QLineEdit& linea);

}  // namespace tessario

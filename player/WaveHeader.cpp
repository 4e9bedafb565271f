#include "player/WaveHeader.h"

#include <QByteArray>
#include <QtEndian>

namespace tambrelle {

bool promisesMoreThanFile(const QByteArray& header, long long fileSize) {
    constexpr qsizetype sizeOffset = 4;
    constexpr quint32 preamble = 8;              // "RIFF" and the size itself, which the size does not count
    constexpr quint32 unknownSize = 0xFFFF'FFFF; // written by programs that stream
    if (!header.startsWith("RIFF") || header.size() < sizeOffset + qsizetype{4})
        return false;
    const auto size = qFromLittleEndian<quint32>(header.constData() + sizeOffset);
    return size != unknownSize && static_cast<long long>(size) + preamble > fileSize;
}

} // namespace tambrelle

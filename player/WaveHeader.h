#pragma once

class QByteArray;

namespace tambrelle {

/// Whether `header`, the first bytes of a file of `fileSize` bytes, is that of a RIFF file which promises
/// more bytes than the file holds. Decoders play what there is of such a file and take it for the whole.
bool promisesMoreThanFile(const QByteArray& header, long long fileSize);

} // namespace tambrelle

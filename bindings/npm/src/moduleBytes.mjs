import { Decoder } from 'lzma1/decoder';
import { InputBuffer, OutputBuffer } from 'lzma1/streams';
import packed from 'packed-module';

/** The WebAssembly module, unpacked. */
export function moduleBytes() {
  const output = new OutputBuffer();
  new Decoder().decompress(new InputBuffer(packed), output);
  return output.toArray();
}

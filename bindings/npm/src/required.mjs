// What `require` returns: the functions are those of the ES module, which the first call loads.
import { QuorvaneError } from './QuorvaneError.mjs';

const quorvane = () => import('./quorvane.mjs');

export async function render(options) {
  return (await quorvane()).render(options);
}

export async function check(options) {
  return (await quorvane()).check(options);
}

export async function format(options) {
  return (await quorvane()).format(options);
}

export async function table(options) {
  return (await quorvane()).table(options);
}

export async function version() {
  return (await quorvane()).version();
}

export { QuorvaneError };

const notSupported = 52;

/** The functions of the system that a module asks for: there is no system, and each says so. */
function systemFor(compiled) {
  const system = {};
  for (const { module, name } of WebAssembly.Module.imports(compiled)) {
    system[module] ??= {};
    system[module][name] = module === 'env' ? () => -notSupported : () => notSupported;
  }
  return system;
}

/** The functions of the module with these functions for it. */
export async function instantiate(functions) {
  const { moduleBytes } = await import('./moduleBytes.mjs');
  const compiled = await WebAssembly.compile(moduleBytes());
  const { exports } = await WebAssembly.instantiate(compiled, {
    ...systemFor(compiled),
    quorvane: functions,
  });
  exports._initialize?.();
  return exports;
}

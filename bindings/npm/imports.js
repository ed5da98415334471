// What the linker looks up; src/instantiate.mjs hands the function to the module.
mergeInto(LibraryManager.library, {
  readFile: () => 0,
});

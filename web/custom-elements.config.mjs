export default {
  globs: ['src/element.ts'],
  outdir: 'dist',
};

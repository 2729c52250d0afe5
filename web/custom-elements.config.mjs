export default {
  globs: ['src/form_control.ts', 'src/settings.ts', 'src/field_value.ts', 'src/element.ts'],
  outdir: 'dist',
};

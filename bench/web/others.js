import IMask from 'imask';
import { Maskito } from '@maskito/core';

// Each dresses a plain input as a CPF field.
export const dress = {
  plain: () => {},
  imask: (input) => IMask(input, { mask: '000.000.000-00' }),
  maskito: (input) =>
    new Maskito(input, { mask: [/\d/, /\d/, /\d/, '.', /\d/, /\d/, /\d/, '.', /\d/, /\d/, /\d/, '-', /\d/, /\d/] }),
};
